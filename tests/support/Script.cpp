#include "support/Script.h"

namespace KzXmlLib10::support {

namespace {

/// Splits "{uri}name".
std::pair<std::u16string, std::u16string> SplitName(const std::string& name) {
    const std::size_t end = name.starts_with('{') ? name.find('}') : 0;
    return end == 0 ? std::pair(std::u16string(), FromUtf8(name))
                    : std::pair(FromUtf8(name.substr(1, end - 1)), FromUtf8(name.substr(end + 1)));
}

void Call(CXmlWriter& writer, const std::string& word) {
    const std::string rest = word.substr(1);
    const std::size_t equals = rest.find('=');
    const auto [uri, name] = SplitName(rest.substr(0, equals));
    const std::u16string value = equals == std::string::npos ? u"" : FromUtf8(rest.substr(equals + 1));
    if (word == "nil")
        writer.WriteXsiNil();
    else if (word.starts_with("type="))
        writer.WriteXsiType(SplitName(word.substr(5)).first, SplitName(word.substr(5)).second,
                            ItemType_string);
    else if (word == ">")
        writer.EndElement();
    else if (word[0] == '<')
        writer.StartElement(name, uri);
    else if (word[0] == '@')
        writer.WriteAttribute(name, uri, value, ItemType_string);
    else if (word[0] == '+' && name.empty())
        writer.SetDefaultNamespace(value);
    else if (word[0] == '+')
        writer.AddNamespace(name, value);
    else
        writer.WriteText(FromUtf8(rest), word[0] == '"' ? ItemType_char : ItemType_string);
}

} // namespace

void RunScript(CXmlWriter& writer, const std::string& words) {
    std::istringstream stream(words);
    for (std::string word; stream >> word;)
        Call(writer, word);
}

CBinaryData HexBytes(const std::string& text) {
    CBinaryData bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == ' ')
            continue;
        if (text[i] == '\'') {
            while (text.at(++i) != '\'')
                bytes.Append(static_cast<unsigned char>(text[i]));
            continue;
        }
        bytes.Append(static_cast<unsigned char>(std::stoi(text.substr(i++, 2), nullptr, 16)));
    }
    return bytes;
}

} // namespace KzXmlLib10::support
