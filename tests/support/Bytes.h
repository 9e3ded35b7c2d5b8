#pragma once

#include <KzXmlLib10/KzXmlLib10.h>

#include <string>

namespace KzXmlLib10::support {

inline CBinaryData ToBinary(const std::string& bytes) {
    CBinaryData data;
    data.SetBuffer(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    return data;
}

inline std::string FromBinary(const CBinaryData& data) {
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

inline std::string Compressed(const std::string& bytes, CompressionType type) {
    CBinaryData data = ToBinary(bytes);
    Compress(data, type);
    return FromBinary(data);
}

inline void LoadBytes(CXmlDocument& document, const std::string& bytes) {
    document.LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

} // namespace KzXmlLib10::support
