// Objects are read from any document or refuse it. What they write is read back, by a new object and by the
// same one, and written as it was.
//
// First byte: the class, and from 128 on formatted output. Second byte: the tolerances.
#include "support/Samples.h"
#include "support/Targets.h"

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/xml/CXmlElement.h>

namespace fuzz {

using namespace KzXmlLib10;

void Objects(Input input) {
    const std::uint8_t choice = input.Byte();
    const unsigned sample = choice % sampleCount;
    CXmlSerializationContext context;
    SetTolerances(context, input.Byte());
    CXmlDocument document(context);
    document.LoadXmlStream(input.Data(), input.Size());
    const CSmartPtr<CXmlObjectBase> object = NewSample(sample);
    object->FromXmlElement(document.GetDocumentElement(), context);
    const auto write = [&](const CSmartPtr<CXmlObjectBase>& from) {
        return from->ToXml(false, choice >= 128, EOLType_LF, context);
    };
    const std::u16string text = write(object);
    // Mixed content changes with its white space.
    if (!IsPlainText(input.Bytes()) || choice >= 128 || HasWhatTextLoses(document))
        return;
    if (HasUnstableValue(text))
        return;
    const CSmartPtr<CXmlObjectBase> again = NewSample(sample);
    try {
        again->FromXml(text.c_str(), context);
        object->FromXml(text.c_str(), context);
    } catch (const CKzException& failure) {
        Fail("what is written can be read", text, failure.GetFullMessage());
    }
    ExpectSame(text, write(again), "what is written and read is written alike");
    ExpectSame(text, write(object), "what is written and read by the same object is written alike");
}

} // namespace fuzz
