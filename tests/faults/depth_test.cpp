// How deep documents may be, and what happens to those that are deeper.
//
//     depth_test [--levels N]   1,000,000 unless given
#include "faults/Report.h"
#include "support/Model.h"
#include "support/Threads.h"

#include <KzXmlLib10/KzXmlLib10.h>

#include <cstdlib>
#include <functional>
#include <string>

using namespace KzXmlLib10;
using namespace kit;
using faults::Seconds;

namespace {

faults::Report report;

template <class String>
String Repeated(const String& text, long times) {
    String all;
    all.reserve(text.size() * static_cast<std::size_t>(times));
    for (long i = 0; i < times; ++i)
        all += text;
    return all;
}

std::u16string Text(long levels, const char16_t* innermost = u"") {
    return Repeated<std::u16string>(u"<n>", levels) + innermost + Repeated<std::u16string>(u"</n>", levels);
}

std::string FastInfoset(long levels) {
    const std::string literal("\xE0\0\0\x01\0\x3C\0n", 8); // then references to its name
    return literal + std::string(static_cast<std::size_t>(levels - 1), '\0') +
           std::string(static_cast<std::size_t>(levels), '\xF0');
}

void Load(const char* what, long levels, const std::function<void(CXmlDocument&)>& load) {
    long found = 0;
    const double seconds = Seconds([&] {
        CXmlDocument document;
        load(document);
        for (const CXmlElement* e = document.GetDocumentElement(); e; e = e->GetFirstElement())
            ++found;
    });
    report.Line(found == levels, "tree of %ld levels from %s: loaded and destroyed in %.2f s", levels, what,
                seconds);
}

void LoadTrees(long levels) {
    const std::u16string text = Text(levels);
    const std::string bytes = FastInfoset(levels);
    Load("text", levels, [&](CXmlDocument& document) { document.LoadXml(text.c_str()); });
    Load("Fast Infoset", levels, [&](CXmlDocument& document) {
        document.LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    });
}

void UseGenericElement(long levels) {
    const std::u16string text = Text(levels, u"x");
    bool same = false;
    const double seconds = Seconds([&] {
        CElement element(u"e");
        element.FromXml(text.c_str());
        const CSmartPtr<CElement> clone = element.Clone();
        same = clone->ToXml(false, false, EOLType_LF, CXmlSerializationContext()) == text;
        CElement copy(u"e");
        copy.FromXmlStream(
            clone->ToFastInfosetStream(FInfoDecl_None, CXmlSerializationContext(), CompressionType_None),
            CXmlSerializationContext());
        // It takes the first child of the root.
        same = same &&
               copy.ToXml(false, false, EOLType_LF, CXmlSerializationContext()) == Text(levels - 1, u"x");
    });
    report.Line(same, "generic element of %ld levels: read and written twice, cloned, destroyed in %.2f s",
                levels, seconds);
}

/// Reads and writes objects inside each other, as deep as the limits allow.
class Objects {
public:
    Objects() { m_node.Class(u"n", Opt, m_node).Prim(u"v", Opt, ItemType_i4); }

    std::u16string Failure(long levels, const char16_t* innermost = u"<v>1</v>") const {
        const std::u16string text = Text(levels, innermost);
        return FailureOf([&] {
            const CSmartPtr<CModelObject> object = m_node.New();
            object->FromXml(text.c_str(), m_context);
            if (object->ToXml(false, false, EOLType_LF, m_context) != text)
                throw CKzException(u"the text differs");
        });
    }

    void FindTheLimit(const char* where, long least, long levels) const {
        long good = 1, bad = levels;
        while (bad - good > 1) {
            const long middle = (good + bad) / 2;
            (Failure(middle).empty() ? good : bad) = middle;
        }
        const bool refused =
            Failure(levels).find(u"\nThe elements are nested too deep (") != std::u16string::npos;
        report.Line(good >= least && refused, "objects, %s: %ld levels read and written, %ld refused", where,
                    good, levels);
    }

    void TimeFailures() const {
        const long levels = faults::isSanitized ? 1000 : 5000;
        double whole = 1e9, half = 1e9;
        for (int round = 0; round < 5; ++round) {
            whole = std::min(whole, SecondsToFail(levels));
            half = std::min(half, SecondsToFail(levels / 2));
        }
        report.Line(whole < 0.1 || !faults::isFast, "failure under %ld objects, with its whole path: %.1f ms",
                    levels, whole * 1e3);
        report.Line(whole / half < 2.5 || !faults::isFast, "which is %.2f times that of half as many",
                    whole / half);
    }

private:
    double SecondsToFail(long levels) const {
        std::u16string message;
        const double seconds = Seconds([&] { message = Failure(levels, u"<v>bad</v>"); });
        if (message != Repeated<std::u16string>(u"Failed to process the element [n]\n", levels) +
                           u"The value [bad] can not be converted to a i4")
            report.Line(false, "the path of a failure under %ld objects", levels);
        return seconds;
    }

    Model m_node{u"n"};
    CXmlSerializationContext m_context;
};

} // namespace

int main(int argc, char** argv) {
    const long levels = faults::Option(argc, argv, "--levels", 1'000'000);
    const std::size_t small = 256 * 1024;
    Register(10, 1);

    LoadTrees(levels);
    support::RunOnStack(small, [&] { LoadTrees(levels / 10); });
    UseGenericElement(levels);
    support::RunOnStack(small, [&] { UseGenericElement(levels / 10); });

    const Objects objects;
    objects.FindTheLimit("main thread", 0, levels);
    support::RunOnStack(8 << 20, [&] {
        objects.FindTheLimit("8 MiB of stack", faults::isSanitized ? 1000 : 5000, levels);
        objects.TimeFailures();
    });
    support::RunOnStack(512 * 1024, [&] { objects.FindTheLimit("512 KiB of stack", 1, levels); });
    support::RunOnStack(small, [&] { objects.FindTheLimit("256 KiB of stack", 1, levels); });
    return report.ExitCode();
}
