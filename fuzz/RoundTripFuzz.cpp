// An object written as Fast Infoset gives the tree that it gives as text.
//
// First byte: the class. Second byte: the tolerances. Third byte: 1 the declaration, 4 no string
// and 8 every string goes into the tables.
#include "support/Samples.h"
#include "support/Targets.h"
#include "support/Tree.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/values/CBinaryData.h>

namespace fuzz {

using namespace KzXmlLib10;

void RoundTrip(Input input) {
    const unsigned sample = input.Byte() % sampleCount;
    CXmlSerializationContext context;
    SetTolerances(context, input.Byte());
    const std::uint8_t options = input.Byte();
    if (options & 12) {
        context.GetFIContext().SetAttributeMaxAddLength(options & 4 ? 0 : 1000);
        context.GetFIContext().SetElementMaxAddLength(options & 4 ? 0 : 1000);
    }
    CXmlDocument source(context);
    source.LoadXmlStream(input.Data(), input.Size());
    const CSmartPtr<CXmlObjectBase> object = NewSample(sample);
    object->FromXmlElement(source.GetDocumentElement(), context);
    const CBinaryData bytes = object->ToFastInfosetStream(options & 1 ? FInfoDecl_10 : FInfoDecl_None,
                                                          context, CompressionType_None);
    const std::u16string text = object->ToXml(false, false, EOLType_LF, context);
    if (!IsPlainText(input.Bytes()) || HasWhatTextLoses(source) || HasMixedContent(source))
        return;
    CXmlDocument fromBytes(context);
    CXmlDocument fromText(context);
    const std::u16string tree = Outcome(fromText, [&] { fromText.LoadXml(text.c_str()); });
    ExpectSame(Outcome(fromBytes, [&] { fromBytes.LoadXmlStream(bytes.GetData(), bytes.GetLength()); }), tree,
               "Fast Infoset gives the tree of the text");
}

} // namespace fuzz
