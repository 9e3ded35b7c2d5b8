#pragma once

#include <KzXmlLib10/object/CKzException.h>
#include <KzXmlLib10/object/CSmartPtr.h>
#include <KzXmlLib10/object/CXmlGeneratedClass.h>
#include <KzXmlLib10/object/CXmlSerializationContext.h>
#include <KzXmlLib10/object/Export.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace KzXmlLib10 {

/// Where records come from: a file, a document in memory or a stream. Memory and stream stay the caller's
/// and must outlive the records.
///
/// A file is named by a std::filesystem::path; text, in whatever string, is a document. Of a stream the
/// buffer is read, from where it stands; its state stays as it is. A stream that has failed is refused.
class RecordSource {
public:
    template <std::same_as<std::filesystem::path> Path>
    RecordSource(const Path& file) : m_source(file) {}
    RecordSource(std::string_view document) : m_source(std::as_bytes(std::span(document))) {}
    RecordSource(std::span<const std::byte> document) : m_source(document) {}
    RecordSource(std::istream& document) : m_source(&document) {}
    RecordSource(const std::string& document) : RecordSource(std::string_view(document)) {}
    RecordSource(const std::vector<std::byte>& document) : m_source(std::span(document)) {}
    /// A temporary would be gone before the first record.
    RecordSource(std::string&&) = delete;
    RecordSource(std::vector<std::byte>&&) = delete;
    /// Neither a document nor, as it may seem, the name of a file.
    RecordSource(const char*) = delete;

    using Variant = std::variant<std::filesystem::path, std::span<const std::byte>, std::istream*>;
    const Variant& Get() const { return m_source; }

private:
    Variant m_source;
};

/// Which elements are records, and what becomes of faulty ones.
struct RecordOptions {
    /// The name of the records' element; where it is empty, the one that the class was generated for. That
    /// is right for the class of a global element; a class of a type, whose constructor asks for a name,
    /// needs it here.
    std::u16string name = {};
    /// Its namespace, where that is not the namespace of the class.
    std::optional<std::u16string> namespaceUri = {};
    /// Is told of each faulty record, by its number from 1, in its turn; then the next one follows. Without
    /// it the failure is thrown.
    std::function<void(std::uint64_t number, const CKzException& failure)> onFault = {};
};

/// The engine of Records: reads a document block by block, and hands out one record after the other.
class QUILLON_EXPORT RecordReader {
public:
    /// Makes an object for an element of the name; null stands for a class's own name.
    using Create = CSmartPtr<CXmlGeneratedClass> (*)(const char16_t* name);

    /// Throws CKzInvalidParamException if `create` needs a name and the options have none.
    RecordReader(RecordSource source, const CXmlSerializationContext& context, RecordOptions options,
                 Create create);
    RecordReader(RecordReader&& other) noexcept;
    RecordReader& operator=(RecordReader&& other) noexcept;
    ~RecordReader();

    /// Goes on to the next record; false behind the last.
    bool Next();
    /// The record, which may be kept; null before the first and behind the last.
    CXmlGeneratedClass* Get() const;
    /// The number of the record, from 1; faulty records count.
    std::uint64_t GetNumber() const;

private:
    class State;
    std::unique_ptr<State> m_state;
};

/// The records of a document, read one at a time: a range of one pass.
///
///     const std::filesystem::path file = "orders.xml.gz";
///     for (COrder& order : records<COrder>(file, context, {.name = u"order"}))
///         total += order.GetTotal();
///
/// Records are those children of the root that bear the name and namespace of the options; where the context
/// ignores namespaces, the name alone counts. All other children of the root are passed over.
///
/// A document of any size is read in constant memory: text in any encoding that expat reads, plain or under
/// gzip or zlib, in blocks of 64 KiB, of which the records are held ready. What takes memory is the largest
/// child of the root, and each distinct name of elements and attributes, which the parser keeps; the Limits
/// of a document apply to each child, those of a compressed stream too. A Fast Infoset document is taken
/// whole, with all its records.
///
/// Each record is an object of its own, which lives on in a CSmartPtr that is pointed at it.
///
/// Failures come in the order of the document, behind the records before them. A faulty record throws
/// CKzValidationException "Failed to process the record 3" around the failure, and a second loop over the
/// same Records goes on behind it; see RecordOptions::onFault for another way. Malformed XML and what else
/// ends the reading is thrown as CXmlDocument tells it, and nothing follows. A loop may be left at any time:
/// file and parser go with the Records, or already at the end of the document.
template <std::derived_from<CXmlGeneratedClass> T>
class Records {
public:
    /// An input iterator.
    class Iterator {
    public:
        using iterator_concept = std::input_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        explicit Iterator(RecordReader* reader) : m_reader(reader) {}

        T& operator*() const { return static_cast<T&>(*m_reader->Get()); }
        T* operator->() const { return &**this; }
        Iterator& operator++() {
            m_reader->Next();
            return *this;
        }
        void operator++(int) { ++*this; }
        friend bool operator==(const Iterator& at, std::default_sentinel_t) { return !at.m_reader->Get(); }

    private:
        RecordReader* m_reader = nullptr;
    };

    /// The context is copied.
    Records(RecordSource source, const CXmlSerializationContext& context, RecordOptions options)
        : m_reader(std::move(source), context, std::move(options), Create) {}

    /// Goes on to the next record: a second loop begins behind the record at which the first one ended.
    Iterator begin() {
        m_reader.Next();
        return Iterator(&m_reader);
    }
    std::default_sentinel_t end() const { return {}; }

    /// The number of the record that the loop stands at, or of the faulty one just thrown, from 1.
    std::uint64_t GetNumber() const { return m_reader.GetNumber(); }

private:
    static CSmartPtr<CXmlGeneratedClass> Create([[maybe_unused]] const char16_t* name) {
        if constexpr (std::constructible_from<T, const char16_t*>) {
            if (name)
                return static_cast<CXmlGeneratedClass*>(new T(name));
        }
        if constexpr (std::default_initializable<T>)
            return static_cast<CXmlGeneratedClass*>(new T());
        else
            return nullptr;
    }

    RecordReader m_reader;
};

/// The records of a document; see Records.
template <std::derived_from<CXmlGeneratedClass> T>
Records<T> records(RecordSource source,
                   const CXmlSerializationContext& context = CXmlSerializationContext::GetDefaultContext(),
                   RecordOptions options = {}) {
    return Records<T>(std::move(source), context, std::move(options));
}

} // namespace KzXmlLib10
