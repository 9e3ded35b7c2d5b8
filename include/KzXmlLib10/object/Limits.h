#pragma once

#include <KzXmlLib10/object/Export.h>

#include <cstdint>

namespace KzXmlLib10 {

/// How much the library takes on, for the whole process. The figures a Limits is made with are far above
/// honest use; they end documents that were made to exhaust the machine.
///
///     Limits limits = GetLimits();
///     limits.inflatedBytes = 16 << 20;
///     SetLimits(limits);
///
/// What goes beyond a limit fails with a CKzException that tells the limit, except where a figure says
/// otherwise. The expansion of entities is bounded by expat, as expat has it.
struct Limits {
    /// Bytes of an input that is taken whole: a text, a stream, a file that is not read in blocks. At most,
    /// and unless set, 2^32 - 1.
    std::uint64_t inputBytes = 0xFFFFFFFF;
    /// Bytes that a gzip or zlib stream may hold. At most 2^32 - 1.
    std::uint64_t inflatedBytes = 1ull << 30;

    /// Bytes of all names, namespaces, values and texts that a CXmlDocument copies into its tree: so many,
    /// and so many for each byte that was parsed. A few bytes of XML or Fast Infoset can refer to a text of
    /// any length, which is copied each time.
    std::uint64_t treeTextBytes = 64ull << 20;
    std::uint64_t treeTextBytesPerInputByte = 256;
    /// The same bytes and those of the nodes that carry them: so many, and so many for each byte that was
    /// handed in, before decompression.
    std::uint64_t treeBytes = 1ull << 30;
    std::uint64_t treeBytesPerInputByte = 512;

    /// Levels of generated objects inside each other, which are read and written by recursion. Trees of
    /// CXmlElement and of CElement have no such limit.
    std::uint64_t nestedObjects = 10'000;
    /// Bytes of a thread's stack that stay free; nesting stops there before it comes to nestedObjects. A
    /// thread keeps at most half its stack free. In a build with the address sanitizer it is at least 512
    /// KiB.
    std::uint64_t stackReserve = 128 * 1024;
    /// Unknown elements that reading an object, with all objects in it, may skip under
    /// SetIgnoreUnknownElements. Where groups nest inside each other, each of them skips the same elements
    /// again, and looks at the attributes of their parent again, which count like elements.
    std::uint64_t skippedElements = 10'000'000;

    /// The greatest positive exponent in the text of a decimal or an integer; beyond it the text fails with
    /// CKzInvalidValueException. At most 100,000,000.
    std::uint64_t decimalExponent = 10'000;
    /// Bytes of memory, in whole KiB, that the match of one value with a pattern facet may take. A value that
    /// would need more does not match. At most 4 TiB - 1 KiB. The steps of a match are bounded by PCRE2.
    std::uint64_t patternHeapBytes = 64ull << 20;
};

/// The limits in force.
QUILLON_EXPORT Limits GetLimits();

/// Puts limits in force. Throws CKzInvalidParamException, and changes nothing, where a figure is above the
/// greatest that it can have.
///
/// May be called at any time on any thread. Each figure is read by itself, at the latest when the work that
/// it bounds begins, so work in hand elsewhere may meet some old figures and some new ones.
QUILLON_EXPORT void SetLimits(const Limits& limits);

} // namespace KzXmlLib10
