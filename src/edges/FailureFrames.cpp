#include <KzXmlLib10/edges/FailureFrames.h>

#include "collections/Messages.h"
#include "conversions/Messages.h"
#include "edges/Messages.h"
#include "fastinfoset/Messages.h"
#include "metadata/Messages.h"
#include "object/Messages.h"
#include "object/Utf8.h"
#include "values/Messages.h"
#include "xml/Expat.h"
#include "xml/Messages.h"

#include <array>
#include <optional>
#include <string_view>

/// The fields of exceptions are fixed, so what a failure is about stands in its class and its message. Here
/// messages are matched with the very formats they were made from, as
///
///     "Failed to find the required Attribute [id]"  with  "Failed to find the required Attribute [%s]": "id"
///
/// A message that no row has made keeps the kind of its class.
namespace KzXmlLib10 {

namespace {

using enum FailureKind;
using namespace messages;

constexpr std::size_t mostArguments = 4;
using Arguments = std::array<std::u16string_view, mostArguments>;

/// A format, what its message is about, and which of its arguments is the name; -1 for none. The first row
/// that fits counts.
struct Row {
    const char16_t* format;
    FailureKind kind;
    int name = -1;
};

constexpr Row rows[] = {
    {FailedToReadElement, ReadElement, 0},
    {FailedToWriteElement, WriteElement, 0},
    {FailedToWriteAttributes, WriteAttributes},

    {UnprocessedElement, Element, 1},
    {NilOnNonNillable, Element, 0},
    {ElementNameDiffers, Element, 1},
    {RequiredElementNotFound, Element, 0},
    {MandatoryElementNotFound, Element, 0},
    {RequiredNamespaceNotFound, Element},
    {NoSubstitutionElement, Element, 0},
    {InvalidElementFound, Element}, // names the element around it, twice
    {MandatoryMemberIsNull, Element, 0},
    {PropertyIsNull, Element, 0},
    {UnexpectedAttribute, Attribute, 0},
    {RequiredAttributeNotFound, Attribute, 0},
    {InappropriateAttribute, Attribute, 0},
    {EmptyChoiceOnReading, Choice, 0},
    {EmptyChoiceOnWriting, Choice},
    {ChoiceAlreadySet, Choice, 0}, // in front of the one without brackets, which matches it too
    {ChoiceNotSelected, Choice, 0},
    {MaximumExceeded, Count, 0},
    {MinimumNotReached, Count, 0},

    {InvalidText, Value, 0},
    {PatternFailed, Value, 1},
    {UnexpectedNilValue, Value},
    {LoneSurrogate, Value},

    {XmlStringIsEmpty, Syntax},
    {XmlStreamIsEmpty, Syntax},
    {NoRootElement, Syntax},
    {InvalidOrEmptyDocument, Syntax},
    {CompressedStreamDamaged, Syntax},
    {UnknownByteEncoding, Syntax},
    {InvalidShort, Syntax},
    {InvalidInt, Syntax},
    {InvalidLong, Syntax},
    {InvalidFloat, Syntax},
    {InvalidDouble, Syntax},
    {InvalidUuid, Syntax},

    {FileNotOpened, File, 0},
    {FileSizeUnknown, File, 0},
    {FileNotRead, File, 0},
    {FileNotWritten, File, 0},
    {FileBlockNotRead, File},
    {FileBlockNotWritten, File},
    {SourceNotRead, File},

    {InputTooLarge, Limit},
    {TreeTextTooLarge, Limit},
    {TreeTooLarge, Limit},
    {InflatedTooLong, Limit},
    {NestedTooDeep, Limit},
    {StreamTooLong, Limit},
    {OutputTooLarge, Limit},
    {EncodedTextTooLong, Limit},
    {BinaryDataTooLong, Limit},
};

/// How all messages of a malformed Fast Infoset begin.
constexpr std::u16string_view malformedFastInfoset = u"Failed to parse FastInfoset. ";
static_assert(std::u16string_view(UnexpectedEnd).starts_with(malformedFastInfoset));

/// The parts of a message that stand where its format has placeholders, or nothing if another format made it.
/// An argument ends where the text behind it in the format is found first, and the last one at the end.
std::optional<Arguments> Match(std::u16string_view message, std::u16string_view format) {
    Arguments arguments;
    std::size_t count = 0;
    for (;;) {
        const std::size_t percent = std::min(format.find(u'%'), format.size());
        if (!message.starts_with(format.substr(0, percent)))
            return std::nullopt;
        message.remove_prefix(percent);
        format.remove_prefix(percent);
        if (format.empty())
            return message.empty() ? std::optional(arguments) : std::nullopt;
        const std::size_t behind = format.find_first_of(u"sduxXf") + 1;
        format.remove_prefix(behind);
        const std::u16string_view literal = format.substr(0, format.find(u'%'));
        const bool isLast = literal.size() == format.size();
        const std::size_t end =
            isLast ? message.size() - std::min(message.size(), literal.size()) : message.find(literal);
        if (end == message.npos || count == mostArguments)
            return std::nullopt;
        arguments[count++] = message.substr(0, end);
        message.remove_prefix(end);
    }
}

/// The number that an argument is written as; 0 for another text.
std::uint64_t ToNumber(std::u16string_view digits) {
    std::uint64_t number = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9')
            return 0;
        number = number * 10 + (digit - u'0');
    }
    return number;
}

/// The codes of the parser have no gap from 1 on, and there is no text for a code beyond them.
bool IsParserError(std::u16string_view text) {
    int code = 1;
    while (XML_ErrorString(static_cast<XML_Error>(code)) &&
           expat::ErrorText(static_cast<XML_Error>(code)) != text)
        ++code;
    return XML_ErrorString(static_cast<XML_Error>(code));
}

/// The messages that have a number in them.
bool MatchNumbered(const std::u16string& message, FailureFrame& frame) {
    if (const auto arguments = Match(message, RecordFailed)) {
        frame.kind = Record;
        frame.number = ToNumber((*arguments)[0]);
        return true;
    }
    if (const auto arguments = Match(message, ParserFailed); arguments && IsParserError((*arguments)[0])) {
        frame.kind = Syntax;
        frame.number = ToNumber((*arguments)[1]);
        return true;
    }
    return false;
}

bool MatchRow(const std::u16string& message, FailureFrame& frame) {
    for (const Row& row : rows) {
        const auto arguments = Match(message, row.format);
        if (!arguments)
            continue;
        frame.kind = row.kind;
        if (row.name >= 0)
            frame.name = ToUtf8WithReplacements((*arguments)[static_cast<std::size_t>(row.name)]);
        return true;
    }
    return false;
}

FailureKind KindOfClass(const CKzException& exception) {
    if (dynamic_cast<const CKzInvalidNamespaceException*>(&exception))
        return Namespace;
    if (dynamic_cast<const CKzInvalidValueException*>(&exception) ||
        dynamic_cast<const CKzOverFlowException*>(&exception))
        return Value;
    if (dynamic_cast<const CKzInvalidStateException*>(&exception))
        return State;
    if (dynamic_cast<const CKzInvalidParamException*>(&exception))
        return Argument;
    return Other;
}

} // namespace

std::vector<FailureFrame> GetFailureFrames(const CKzException& failure) {
    std::vector<FailureFrame> frames;
    for (const CKzException* link = &failure; link; link = link->GetInnerException()) {
        const std::u16string message = link->GetMessageW();
        FailureFrame& frame = frames.emplace_back();
        frame.depth = frames.size() - 1;
        frame.message = ToUtf8WithReplacements(message);
        if (MatchNumbered(message, frame) || MatchRow(message, frame))
            continue;
        frame.kind = message.starts_with(malformedFastInfoset) ? Syntax : KindOfClass(*link);
    }
    return frames;
}

const char* GetFailureKindName(FailureKind kind) {
    static constexpr const char* names[] = {"Record",  "ReadElement", "WriteElement", "WriteAttributes",
                                            "Element", "Attribute",   "Choice",       "Count",
                                            "Value",   "Namespace",   "Syntax",       "File",
                                            "Limit",   "State",       "Argument",     "Other"};
    const auto index = static_cast<std::size_t>(kind);
    return index < std::size(names) ? names[index] : "";
}

} // namespace KzXmlLib10
