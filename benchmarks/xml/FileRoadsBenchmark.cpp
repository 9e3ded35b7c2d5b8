// Large files by both roads: whole through memory, and block by block.

#include <KzXmlLib10/xml/AsyncFiles.h>
#include <KzXmlLib10/xml/CFileBinaryStream.h>
#include <KzXmlLib10/xml/CFileTextStream.h>
#include <KzXmlLib10/xml/CXmlDocument.h>
#include <KzXmlLib10/xml/CXmlTextWriter.h>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>

using namespace KzXmlLib10;

namespace {

const std::filesystem::path path = std::filesystem::temp_directory_path() / "quillon-file-roads.xml";

void WriteDocument(CTextStream& stream) {
    static const std::u16string none, order = u"order", item = u"item", text = u"Screwdriver, flat & long";
    CXmlTextWriter writer(&stream);
    writer.StartElement(order, none);
    for (int i = 0; i < 1000000; ++i) {
        writer.StartElement(item, none);
        writer.WriteText(text, ItemType_string);
        writer.EndElement();
    }
    writer.EndElement();
    stream.Close();
}

void CountFile(benchmark::State& state) {
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(std::filesystem::file_size(path)));
    std::filesystem::remove(path);
}

void WriteFile(benchmark::State& state) {
    const std::u16string name = path.u16string();
    for (auto _ : state) {
        if (state.range(0) != 0) {
            CFileTextStream stream(name.c_str(), XmlEncoding_UTF8);
            WriteDocument(stream);
        } else {
            CTextStream text(XmlEncoding_UTF8);
            WriteDocument(text);
            CFileBinaryStream stream(name.c_str(), XmlEncoding_UTF8);
            stream.m_data = text.GetBytes();
            stream.SaveToFile();
        }
    }
    CountFile(state);
}
BENCHMARK(WriteFile)->ArgName("blocks")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Takes the file out of the kernel's cache.
void Cool() {
    const int file = open(path.c_str(), O_RDONLY);
    fsync(file);
    posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
    close(file);
}

void ReadFile(benchmark::State& state) {
    const std::u16string name = path.u16string();
    {
        CFileTextStream stream(name.c_str(), XmlEncoding_UTF8);
        WriteDocument(stream);
    }
    AsyncFromXmlFile(state.range(0) != 0);
    for (auto _ : state) {
        if (state.range(1) != 0) {
            state.PauseTiming();
            Cool();
            state.ResumeTiming();
        }
        CXmlDocument document([](CXmlElement* element) { return element->GetLocalName() == u"item"; });
        document.Load(name.c_str());
    }
    AsyncFromXmlFile(false);
    CountFile(state);
}
BENCHMARK(ReadFile)
    ->ArgNames({"blocks", "cold"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
