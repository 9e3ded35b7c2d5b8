// How deep documents may be, and what happens to those that are deeper.
//
//     depth_test [--levels N]   1,000,000 unless given
#include "faults/Report.h"
#include "support/Test.h"

using namespace kit;

namespace {

faults::Report report;

/// So many elements in each other.
std::u16string Nested(std::size_t levels, const std::u16string& innermost = u"") {
    return Repeat<std::u16string>(u"<n>", levels) + innermost + Repeat<std::u16string>(u"</n>", levels);
}

std::string FastInfoset(std::size_t levels) {
    const std::string literal("\xE0\0\0\x01\0\x3C\0n", 8); // then references to its name
    return literal + std::string(levels - 1, '\0') + std::string(levels, '\xF0');
}

void Load(const char* what, std::size_t levels, const std::function<void(CXmlDocument&)>& load) {
    std::size_t found = 0;
    const double seconds = Seconds([&] {
        CXmlDocument document;
        load(document);
        for (const CXmlElement* e = document.GetDocumentElement(); e; e = e->GetFirstElement())
            ++found;
    });
    report.Line(found == levels, "tree of %zu levels from %s: loaded and destroyed in %.2f s", levels, what,
                seconds);
}

void LoadTrees(std::size_t levels) {
    const std::u16string text = Nested(levels);
    const std::string bytes = FastInfoset(levels);
    Load("text", levels, [&](CXmlDocument& document) { document.LoadXml(text.c_str()); });
    Load("Fast Infoset", levels, [&](CXmlDocument& document) { LoadBytes(document, bytes); });
}

/// Trees that go away in part: as the document ends too early, or as the callback wants none of them.
void DropTrees(std::size_t levels) {
    const std::u16string text = u"<r><d>" + Nested(levels) + u"</d></r>";
    CXmlDocument document([](CXmlElement* element) { return element->GetLocalName() == u"d"; });
    const std::string failure = Failure([&] { document.LoadXml(text.substr(0, text.size() / 2).c_str()); });
    document.LoadXml(text.c_str());
    report.Line(failure != "no failure" && support::DumpTree(document.GetDocumentElement()) == "r",
                "tree of %zu levels: in part, and dropped by the callback", levels);
}

void UseGenericElement(std::size_t levels) {
    const CXmlSerializationContext context;
    const std::u16string text = Nested(levels, u"x");
    bool same = false;
    const double seconds = Seconds([&] {
        CElement element(u"e");
        element.FromXml(text.c_str());
        const CSmartPtr<CElement> clone = element.Clone();
        clone->SetNamespaceRestrictions(u"##local", u"");
        same = CElement(clone, nullptr).ToXml(false, false, EOLType_LF, context) == text;
        CElement copy(u"e");
        copy.FromXmlStream(clone->ToFastInfosetStream(FInfoDecl_None, context, CompressionType_None),
                           context);
        // It takes the first child of the root.
        same = same && copy.ToXml(false, false, EOLType_LF, context) == Nested(levels - 1, u"x");
    });
    report.Line(same, "generic element of %zu levels: read and written twice, cloned, destroyed in %.2f s",
                levels, seconds);
}

/// Reads and writes objects inside each other, as deep as the limits allow.
class Objects {
public:
    Objects() { m_node.Class(u"n", Opt, m_node).Prim(u"v", Opt, ItemType_i4); }

    std::u16string FailureAt(std::size_t levels, const char16_t* innermost = u"<v>1</v>") const {
        const std::u16string text = Nested(levels, innermost);
        return FailureOf([&] {
            const CSmartPtr<CModelObject> object = m_node.New();
            object->FromXml(text.c_str(), m_context);
            if (object->ToXml(false, false, EOLType_LF, m_context) != text)
                throw CKzException(u"the text differs");
        });
    }

    void FindTheLimit(const char* where, std::size_t least, std::size_t levels) const {
        std::size_t good = 1, bad = levels;
        while (bad - good > 1) {
            const std::size_t middle = (good + bad) / 2;
            (FailureAt(middle).empty() ? good : bad) = middle;
        }
        const bool refused =
            FailureAt(levels).find(u"\nThe elements are nested too deep (") != std::u16string::npos;
        report.Line(good >= least && refused, "objects, %s: %zu levels read and written, %zu refused", where,
                    good, levels);
    }

    void TimeFailures() const {
        const std::size_t levels = faults::isSanitized ? 1000 : 5000;
        double whole = 1e9, half = 1e9;
        for (int round = 0; round < 5; ++round) {
            whole = std::min(whole, SecondsToFail(levels));
            half = std::min(half, SecondsToFail(levels / 2));
        }
        report.Line(whole < 0.1 || !faults::isFast, "failure under %zu objects, with its whole path: %.1f ms",
                    levels, whole * 1e3);
        report.Line(whole / half < 2.5 || !faults::isFast, "which is %.2f times that of half as many",
                    whole / half);
    }

private:
    double SecondsToFail(std::size_t levels) const {
        std::u16string message;
        const double seconds = Seconds([&] { message = FailureAt(levels, u"<v>bad</v>"); });
        if (message != Repeat<std::u16string>(u"Failed to process the element [n]\n", levels) +
                           u"The value [bad] can not be converted to a i4")
            report.Line(false, "the path of a failure under %zu objects", levels);
        return seconds;
    }

    Model m_node{u"n"};
    CXmlSerializationContext m_context;
};

} // namespace

int main(int argc, char** argv) {
    const std::size_t levels = std::strtoul(faults::Option(argc, argv, "--levels", "1000000"), nullptr, 10);
    const std::size_t small = 256 * 1024;
    Register(10, 1);

    LoadTrees(levels);
    UseGenericElement(levels);
    RunOnStack(small, [&] {
        LoadTrees(levels / 10);
        DropTrees(levels / 10);
        UseGenericElement(levels / 10);
    });

    const Objects objects;
    objects.FindTheLimit("main thread", 0, levels);
    RunOnStack(8 << 20, [&] {
        objects.FindTheLimit("8 MiB of stack", faults::isSanitized ? 1000 : 5000, levels);
        objects.TimeFailures();
    });
    RunOnStack(512 * 1024, [&] { objects.FindTheLimit("512 KiB of stack", 1, levels); });
    RunOnStack(small, [&] { objects.FindTheLimit("256 KiB of stack", 1, levels); });
    return report.ExitCode();
}
