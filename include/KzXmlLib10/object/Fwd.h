#pragma once

/// Declares the classes that signatures of the library refer to, without defining them.

namespace KzXmlLib10 {

class CAttribute;
class CAttributeCol;
class CBigInteger;
class CBinaryData;
class CBinaryStream;
class CClassfactoryBase;
class CDateTime;
class CDateTimeSpan;
class CDecimal;
class CElement;
class CElementCol;
class CFIVocabulary;
class CFastInfosetContext;
class CFastInfosetWriter;
class CFileBinaryStream;
class CFileTextStream;
class CInstanceMonitor;
class CKZCriticalSection;
class CKzException;
class CNamespaceAliasMap;
class CPrimitiveRestrictions;
class CStringBuffer;
class CTextStream;
class CXmlAttribute;
class CXmlCollection;
class CXmlCollectionBase;
class CXmlDocument;
class CXmlElement;
class CXmlGeneratedClass;
class CXmlObjectBase;
class CXmlSerializationContext;
class CXmlTextWriter;
class CXmlTypeCollection;
class CXmlWriter;
class Cbase64BinaryCol;
class CbooleanCol;
class CdateCol;
class CdatetimeBaseCol;
class CdatetimeCol;
class CdayCol;
class CdecimalCol;
class CdurationCol;
class ChexBinaryCol;
class Ci1Col;
class Ci2Col;
class Ci4Col;
class Ci8Col;
class CintegerCol;
class CmonthCol;
class CmonthDayCol;
class Cr4Col;
class Cr8Col;
class CstringCol;
class CtimeCol;
class Cui1Col;
class Cui2Col;
class Cui4Col;
class Cui8Col;
class CyearCol;
class CyearMonthCol;
class IEventSink;
class INillable;
class KzVariant;

} // namespace KzXmlLib10

namespace KzXmlLib10Data {

class CAttributeInfo;
class CElementInfo;
class CParentElementInfo;

} // namespace KzXmlLib10Data
