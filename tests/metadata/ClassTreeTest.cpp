/// The class tree of the descriptors, which generated code relies on, held at compile time.

#include <KzXmlLib10/metadata/CAttributeInfoAny.h>
#include <KzXmlLib10/metadata/CElementInfoAll.h>
#include <KzXmlLib10/metadata/CElementInfoChoice.h>
#include <KzXmlLib10/metadata/CElementInfoSeq.h>

#include <type_traits>

using namespace KzXmlLib10Data;

namespace {

template <class Base, class... Classes>
constexpr bool haveBase = (std::is_base_of_v<Base, Classes> && ...);
template <class... Classes>
constexpr bool areAbstract = (std::is_abstract_v<Classes> && ...);
template <class... Classes>
constexpr bool areComplete = !(std::is_abstract_v<Classes> || ...);

using S = CElementInfoSeq;
static_assert(haveBase<CElementInfo, S, CElementInfoChoice, CElementInfoAll>);
static_assert(haveBase<S, CElementInfoSeqNonCol, CElementInfoSeqCol>);
static_assert(areComplete<CElementInfoSeqAbsClsCol, CElementInfoSeqPrimCol, CElementInfoSeqEnumCol>);
static_assert(haveBase<CElementInfoSeqCol, CElementInfoSeqClsCol, CElementInfoSeqAbsClsCol,
                       CElementInfoSeqPrimCol, CElementInfoSeqEnumCol, CElementInfoSeqUntpdCol>);
static_assert(areComplete<CElementInfoChoiceAbsClsCol, CElementInfoChoicePrimCol, CElementInfoChoiceEnumCol>);
static_assert(haveBase<CElementInfoChoiceCol, CElementInfoChoiceClsCol, CElementInfoChoiceAbsClsCol,
                       CElementInfoChoicePrimCol, CElementInfoChoiceEnumCol, CElementInfoChoiceUntpdCol>);
// Repeated particles of an all group cannot be made.
static_assert(
    areAbstract<CElementInfoAllNonCol, CElementInfoAllCol, CElementInfoAllClsCol, CElementInfoAllEnumCol,
                CElementInfoAllAbsClsCol, CElementInfoAllPrimCol, CElementInfoAllUntpdCol>);
static_assert(!haveBase<CElementInfoAllCol, CElementInfoAllEnumCol>);
static_assert(haveBase<CAttributeInfo, CAttributeInfoAny> && areAbstract<CAttributeInfo, CElementInfo>);

} // namespace
