/// The class tree of the descriptors, which generated code relies on, held at compile time.

#include <KzXmlLib10/metadata/CAttributeInfoAny.h>
#include <KzXmlLib10/metadata/CElementInfoAll.h>
#include <KzXmlLib10/metadata/CElementInfoChoice.h>
#include <KzXmlLib10/metadata/CElementInfoSeq.h>

#include <type_traits>

using namespace KzXmlLib10Data;

namespace {

using Name = const char16_t*;
using Rule = CWhitespaceUtils::WhitespaceRule;
using Facets = const CPrimitiveRestrictions&;

/// Arguments behind name, namespace and property index.
template <class... Arguments>
struct With {
    template <class Leaf>
    static constexpr bool builds = std::is_constructible_v<Leaf, Name, Name, int, Arguments...>;
};
using Plain = With<>;
using Prim = With<bool, ItemType, Name, Rule, Facets>;
using Enum = With<bool, EnumToString, StringToEnum>;
using Cls = With<XmlElementType, ClassFactory, int>;
using ClsMnd = With<XmlElementType, ClassFactory, int, bool>;
using AbsCls = With<XmlElementType, SubstitutionFactory>;
using AllAbsClsMnd = With<XmlElementType, SubstitutionFactory, int>;
using ClsCol = With<XmlElementType>;
using Untpd = With<Name, Name>;

template <class Base, class Leaf>
constexpr bool isChildOf = std::is_base_of_v<Base, Leaf> && !std::is_same_v<Base, Leaf>;

/// A complete leaf with its constructor, under its base.
template <class Base, class Arguments, class... Leaves>
constexpr bool hasLeaves = ((isChildOf<Base, Leaves> && !std::is_abstract_v<Leaves> &&
                             Arguments::template builds<Leaves>)&&...);

template <class Base, class... Classes>
constexpr bool hasAbstract = ((isChildOf<Base, Classes> && std::is_abstract_v<Classes>)&&...);

using S = CElementInfoSeq;
static_assert(hasLeaves<S, Prim, CElementInfoSeqPrimMnd, CElementInfoSeqPrimOpt>);
static_assert(hasLeaves<S, Enum, CElementInfoSeqEnumMnd, CElementInfoSeqEnumOpt>);
static_assert(hasLeaves<S, ClsMnd, CElementInfoSeqClsMnd>);
static_assert(hasLeaves<S, Cls, CElementInfoSeqClsOpt>);
static_assert(hasLeaves<S, AbsCls, CElementInfoSeqAbsClsMnd, CElementInfoSeqAbsClsOpt>);
static_assert(hasLeaves<S, Untpd, CElementInfoSeqUntpdMnd, CElementInfoSeqUntpdOpt>);
static_assert(hasLeaves<S, Plain, CElementInfoSeqCol>);
static_assert(hasLeaves<CElementInfoSeqCol, ClsCol, CElementInfoSeqClsCol, CElementInfoSeqAbsClsCol>);
static_assert(hasLeaves<CElementInfoSeqCol, Plain, CElementInfoSeqPrimCol, CElementInfoSeqEnumCol,
                        CElementInfoSeqUntpdCol>);
static_assert(hasAbstract<CElementInfo, S> && hasAbstract<S, CElementInfoSeqNonCol>);

static_assert(!Plain::builds<CElementInfoSeqPrimMnd> && !Prim::builds<CElementInfoSeqPrimCol>);

using C = CElementInfoChoice;
static_assert(hasLeaves<C, Prim, CElementInfoChoicePrimOpt>);
static_assert(hasLeaves<C, Enum, CElementInfoChoiceEnumOpt>);
static_assert(hasLeaves<C, Cls, CElementInfoChoiceClsOpt>);
static_assert(hasLeaves<C, AbsCls, CElementInfoChoiceAbsClsOpt>);
static_assert(hasLeaves<C, Untpd, CElementInfoChoiceUntpdOpt>);
static_assert(hasLeaves<C, Plain, CElementInfoChoiceCol>);
static_assert(
    hasLeaves<CElementInfoChoiceCol, ClsCol, CElementInfoChoiceClsCol, CElementInfoChoiceAbsClsCol>);
static_assert(hasLeaves<CElementInfoChoiceCol, Plain, CElementInfoChoicePrimCol, CElementInfoChoiceEnumCol,
                        CElementInfoChoiceUntpdCol>);
static_assert(hasAbstract<CElementInfo, C>);

using A = CElementInfoAll;
static_assert(hasLeaves<A, Prim, CElementInfoAllPrimMnd, CElementInfoAllPrimOpt>);
static_assert(hasLeaves<A, Enum, CElementInfoAllEnumMnd, CElementInfoAllEnumOpt>);
static_assert(hasLeaves<A, ClsMnd, CElementInfoAllClsMnd>);
static_assert(hasLeaves<A, Cls, CElementInfoAllClsOpt>);
static_assert(hasLeaves<A, AllAbsClsMnd, CElementInfoAllAbsClsMnd>);
static_assert(hasLeaves<A, AbsCls, CElementInfoAllAbsClsOpt>);
static_assert(hasLeaves<A, Untpd, CElementInfoAllUntpdMnd, CElementInfoAllUntpdOpt>);
// Repeated particles of an all group cannot be made.
static_assert(hasAbstract<A, CElementInfoAllNonCol, CElementInfoAllCol, CElementInfoAllEnumCol>);
static_assert(hasAbstract<CElementInfoAllCol, CElementInfoAllClsCol, CElementInfoAllAbsClsCol,
                          CElementInfoAllPrimCol, CElementInfoAllUntpdCol>);
static_assert(!std::is_base_of_v<CElementInfoAllCol, CElementInfoAllEnumCol>);

static_assert(std::is_base_of_v<CAttributeInfo, CAttributeInfoAny>);
static_assert(std::is_constructible_v<CAttributeInfoAny, Name, Name, int, bool, Name, Name, Name>);
static_assert(std::is_abstract_v<CAttributeInfo> && std::is_abstract_v<CElementInfo>);

} // namespace
