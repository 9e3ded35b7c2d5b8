#pragma once

/// The whole library in one header. Each of the headers below can also be included alone.

#include <KzXmlLib10/object/CClassfactoryBase.h>
#include <KzXmlLib10/object/CInstanceMonitor.h>
#include <KzXmlLib10/object/CKZCriticalSection.h>
#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/CNamespaceAliasMap.h>
#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/object/CXmlObjectBase.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Enumerations.h>
#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/FormatString.h>
#include <KzXmlLib10/object/Fwd.h>
#include <KzXmlLib10/object/IEventSink.h>
#include <KzXmlLib10/object/INillable.h>
#include <KzXmlLib10/object/ItemType.h>
#include <KzXmlLib10/object/Limits.h>
#include <KzXmlLib10/object/Register.h>
#include <KzXmlLib10/object/Text.h>
#include <KzXmlLib10/object/UniqueNumber.h>

#include <KzXmlLib10/conversions/CConversions.h>
#include <KzXmlLib10/conversions/CPrimitiveRestrictions.h>
#include <KzXmlLib10/conversions/CWhitespaceUtils.h>
#include <KzXmlLib10/conversions/FacetChecks.h>
#include <KzXmlLib10/conversions/XsdPattern.h>

#include <KzXmlLib10/values/CBigInteger.h>
#include <KzXmlLib10/values/CBinaryData.h>
#include <KzXmlLib10/values/CDateTime.h>
#include <KzXmlLib10/values/CDateTimeSpan.h>
#include <KzXmlLib10/values/CDecimal.h>
#include <KzXmlLib10/values/KzVariant.h>
#include <KzXmlLib10/values/SystemTime.h>

#include <KzXmlLib10/fastinfoset/CFIVocabulary.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetBinaryData.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetContext.h>
#include <KzXmlLib10/fastinfoset/CFastInfosetWriter.h>

#include <KzXmlLib10/xml/AsyncFiles.h>
#include <KzXmlLib10/xml/CBinaryStream.h>
#include <KzXmlLib10/xml/CFileBinaryStream.h>
#include <KzXmlLib10/xml/CFileTextStream.h>
#include <KzXmlLib10/xml/CStringBuffer.h>
#include <KzXmlLib10/xml/CTextStream.h>
#include <KzXmlLib10/xml/CXmlAttribute.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlElement.h>
#include <KzXmlLib10/xml/CXmlTextWriter.h>
#include <KzXmlLib10/xml/CXmlWriter.h>
#include <KzXmlLib10/xml/Compression.h>
#include <KzXmlLib10/xml/SharedName.h>

#include <KzXmlLib10/collections/BinaryCols.h>
#include <KzXmlLib10/collections/CAttribute.h>
#include <KzXmlLib10/collections/CAttributeCol.h>
#include <KzXmlLib10/collections/CElement.h>
#include <KzXmlLib10/collections/CElementCol.h>
#include <KzXmlLib10/collections/CItemVector.h>
#include <KzXmlLib10/collections/CKzIterator.h>
#include <KzXmlLib10/collections/CPrimitiveCol.h>
#include <KzXmlLib10/collections/CXmlCollection.h>
#include <KzXmlLib10/collections/CXmlCollectionBase.h>
#include <KzXmlLib10/collections/CXmlTypeCollection.h>
#include <KzXmlLib10/collections/CalendarCols.h>
#include <KzXmlLib10/collections/CbooleanCol.h>
#include <KzXmlLib10/collections/CdurationCol.h>
#include <KzXmlLib10/collections/CstringCol.h>
#include <KzXmlLib10/collections/DateTimeCols.h>
#include <KzXmlLib10/collections/ExactNumberCols.h>
#include <KzXmlLib10/collections/IntegerCols.h>
#include <KzXmlLib10/collections/RealCols.h>

#include <KzXmlLib10/metadata/CAttributeInfo.h>
#include <KzXmlLib10/metadata/CAttributeInfoAny.h>
#include <KzXmlLib10/metadata/CElementInfo.h>
#include <KzXmlLib10/metadata/CElementInfoAll.h>
#include <KzXmlLib10/metadata/CElementInfoChoice.h>
#include <KzXmlLib10/metadata/CElementInfoSeq.h>
#include <KzXmlLib10/metadata/CParentElementInfo.h>
#include <KzXmlLib10/metadata/ElementKinds.h>
#include <KzXmlLib10/metadata/Names.h>
#include <KzXmlLib10/metadata/XmlElementType.h>

#include <KzXmlLib10/edges/Chrono.h>
#include <KzXmlLib10/edges/FailureFrames.h>
#include <KzXmlLib10/edges/Ranges.h>
#include <KzXmlLib10/edges/ReadAndWrite.h>
#include <KzXmlLib10/edges/Records.h>
