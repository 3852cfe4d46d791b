#include "support/catalogue/Catalogue.h"

namespace math::test
{

const std::vector<ConstOperation> PositionOperations = {
    {"PosRangeD::PosRangeD()", Memory::None, [](const Setting& /*o*/, Answer& answer) { answer << PosRangeD(); }},
    {"PosRangeD::PosRangeD(double const&, double const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD(o.x, o.y); }},
    {"PosRangeD::PosRangeD(int, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD(2, 0.25, o.z); }},
    {"PosRangeD::PosRangeD(int, double, int, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD(2, 0.25, 3, o.z); }},
    {"PosRangeD::PosRangeD(PosRangeD const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD(o.forward); }},
    {"PosRangeD::~PosRangeD()", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD(o.wrapping); }},
    {"PosRangeD::Complementary() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.Complementary(); }},
    {"PosRangeD::GetRadio(double const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD::GetRadio(o.position); }},
    {"PosRangeD::GetSegmentIndex(double const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD::GetSegmentIndex(o.position); }},
    {"PosRangeD::IsComplementary(PosRangeD const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.IsComplementary(o.wrapping); }},
    {"PosRangeD::IsContain(double const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.IsContain(o.position); }},
    {"PosRangeD::IsContain(PosRangeD const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.IsContain(o.otherForward); }},
    {"PosRangeD::IsContainZero() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.wrapping.IsContainZero(); }},
    {"PosRangeD::IsEmpty() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.wrapping.IsEmpty(); }},
    {"PosRangeD::IsInvalid() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.wrapping.IsInvalid(); }},
    {"PosRangeD::IsWholeRange() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.wrapping.IsWholeRange(); }},
    {"PosRangeD::IsOn(double const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.IsOn(o.position); }},
    {"PosRangeD::IsOverlap(PosRangeD const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.IsOverlap(o.wrapping); }},
    {"PosRangeD::NormalizePos(double const&, int const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD::NormalizePos(o.position + 40, 4); }},
    {"PosRangeD::NormalizePos(double const&, PosRangeD const&, int const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << PosRangeD::NormalizePos(o.position + 40, o.wrapping, 4); }},
    {"PosRangeD::Reverse(int const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.forward.Reverse(4); }},
    {"PosRangeD::operator!=(PosRangeD const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << (o.forward != o.wrapping); }},
    {"PosRangeD::operator==(PosRangeD const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << (o.forward == o.wrapping); }},
    {"PosRangeD::operator<(PosRangeD const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << (o.forward < o.wrapping); }},
    {"PosRangeD::operator*(PosRangeD const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << (o.forward * o.otherForward) << (o.forward * o.wrapping) << (o.wrapping * o.wrapping);
     }},
    {"PosRangeD::operator+(PosRangeD const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << (o.forward + o.otherForward) << (o.forward + o.wrapping) << (o.wrapping + o.wrapping);
     }},
    {"PosRangeD::operator-(PosRangeD const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << (o.forward - o.otherForward) << (o.forward - o.wrapping) << (o.wrapping - o.forward);
     }},
    {"CPolyPosMap::CPolyPosMap()", Memory::None, [](const Setting& /*o*/, Answer& answer) { answer << CPolyPosMap(); }},
    {"CPolyPosMap::CPolyPosMap(CPolyPosMap const&)", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMap(o.map); }},
    {"CPolyPosMap::CPolyPosMap(std::vector<std::pair<double, double>> const&, int const&, int const&)", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMap(o.pairs, 4, 5); }},
    {"CPolyPosMap::~CPolyPosMap()", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMap(o.seamMap); }},
    {"CPolyPosMap::Back() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.Back() << o.seamMap.Back(); }},
    {"CPolyPosMap::Front() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.Front() << o.seamMap.Front(); }},
    {"CPolyPosMap::DstSegmentCount() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.DstSegmentCount() << o.seamMap.DstSegmentCount(); }},
    {"CPolyPosMap::SrcSegmentCount() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.SrcSegmentCount() << o.seamMap.SrcSegmentCount(); }},
    {"CPolyPosMap::IsEmpty() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.IsEmpty() << o.seamMap.IsEmpty(); }},
    {"CPolyPosMap::IsIdentity() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.IsIdentity() << o.seamMap.IsIdentity(); }},
    {"CPolyPosMap::IsInvalid() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.IsInvalid() << o.seamMap.IsInvalid(); }},
    {"CPolyPosMap::IsNormalize() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.IsNormalize() << o.seamMap.IsNormalize(); }},
    {"CPolyPosMap::PosPairs() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.PosPairs() << o.seamMap.PosPairs(); }},
    {"CPolyPosMap::IsIncrease(int const&) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.map.IsIncrease(1) << o.seamMap.IsIncrease(2) << o.map.IsIncrease(3);
     }},
    {"CPolyPosMap::IsPoint(int const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.IsPoint(1) << o.seamMap.IsPoint(2) << o.map.IsPoint(3); }},
    {"CPolyPosMap::GetMaxLeftIndex(double const&, int const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.GetMaxLeftIndex(o.position, 1); }},
    {"CPolyPosMap::GetMinRightIndex(double const&, int const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.GetMinRightIndex(o.position, 2); }},
    {"CPolyPosMap::GetRange(int const&, bool const&) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.map.GetRange(1, false) << o.seamMap.GetRange(2, true); }},
    {"CPolyPosMap::IsOverRange(double const&, int const&) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.map.IsOverRange(o.position, 1) << o.seamMap.IsOverRange(o.position, 3);
     }},
    {"CPolyPosMap::IsPosPairEqual(std::pair<double, double> const&, std::pair<double, double> const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMap::IsPosPairEqual(o.pairs.front(), o.pairs.back()); }},
    {"CPolyPosMap::MultyDouble(double const&, bool const&, bool const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << o.map.MultyDouble(o.position, false, false) << o.map.MultyDouble(0.0, true, true);
     }},
    {"CPolyPosMap::operator!() const", Memory::Own, [](const Setting& o, Answer& answer) { answer << !o.map; }},
    {"CPolyPosMap::operator*(double const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << (o.map * o.position) << (o.seamMap * 0.25) << (o.map * 2.0); }},
    {"CPolyPosMap::operator*(CPolyPosMap const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << (o.map * o.seamMap); }},
    {"CPolyPosMap::operator*(CPolyPosMap const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << (o.seamMap * o.seamMap); }},
    {"CPolyPosMap::operator+(CPolyPosMap const&) const", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << (o.firstHalf + o.secondHalf); }},
    {"CPolyPosMapUtilies::CombineTwoCad(int const&, int const&)", Memory::Own,
     [](const Setting& /*o*/, Answer& answer) { answer << CPolyPosMapUtilies::CombineTwoCad(2, 3); }},
    {"CPolyPosMapUtilies::CombineTwoMapStandalone(CPolyPosMap const&, CPolyPosMap const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::CombineTwoMapStandalone(o.map, o.staircase);
     }},
    {"CPolyPosMapUtilies::CombineTwonMapWithSameDst(CPolyPosMap const&, CPolyPosMap const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::CombineTwonMapWithSameDst(o.firstHalf, o.secondHalf);
     }},
    {"CPolyPosMapUtilies::CombineTwonMapWithSameSrc(CPolyPosMap const&, CPolyPosMap const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::CombineTwonMapWithSameSrc(o.firstHalf, o.secondHalf);
     }},
    {"CPolyPosMapUtilies::ExtendMap(CPolyPosMap const&, int const&, bool const&, bool const&, bool const&)",
     Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::ExtendMap(o.map, 2, false, true, false)
                << CPolyPosMapUtilies::ExtendMap(o.map, 2, true, false, true);
     }},
    {"CPolyPosMapUtilies::ExtendMap(CPolyPosMap const&, int const&, bool const&, bool const&, bool const&)",
     Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMapUtilies::ExtendMap(o.map, 2, true, true, true); }},
    {"CPolyPosMapUtilies::ExtendMap(CPolyPosMap const&, int const&, int const&, bool const&)", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMapUtilies::ExtendMap(o.map, 2, 3, false); }},
    {"CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(PosRangeD const&, int const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(o.wrapping, 4);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromPosRange2Pos(PosRangeD const&, double const&, int const&, int const&)",
     Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::GeneratePosMapFromPosRange2Pos(o.forward, o.position, 4, 5);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromPosRangeVec(std::vector<PosRangeD> const&, int const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::GeneratePosMapFromPosRangeVec(o.ranges, 5);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromSegmentMap(std::vector<int> const&, int const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::GeneratePosMapFromSegmentMap(o.segmentMap, 5);
     }},
    {"CPolyPosMapUtilies::GenerateWholeMap(int const&, bool const&)", Memory::Own,
     [](const Setting& /*o*/, Answer& answer) { answer << CPolyPosMapUtilies::GenerateWholeMap(4, true); }},
    {"CPolyPosMapUtilies::GetSegmentMapFronPosMap(CPolyPosMap const&)", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMapUtilies::GetSegmentMapFronPosMap(o.map); }},
    {"CPolyPosMapUtilies::RemoveOpenRangeFromMap(CPolyPosMap const&, PosRangeD const&, bool const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         answer << CPolyPosMapUtilies::RemoveOpenRangeFromMap(o.map, PosRangeD(3, 4), true)
                << CPolyPosMapUtilies::RemoveOpenRangeFromMap(o.map, PosRangeD(0, 1), false);
     }},
    {"CPolyPosMapUtilies::ResetZero(double const&, int const&)", Memory::Own,
     [](const Setting& o, Answer& answer) { answer << CPolyPosMapUtilies::ResetZero(o.position, 4); }},
};

const std::vector<ChangingOperation> ChangingPositionOperations = {
    {"PosRangeD::MakeInavlid()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.forward.MakeInavlid();
         answer << o.forward;
     }},
    {"PosRangeD::Splite(double const&)", Memory::Own,
     [](Setting& o, Answer& answer) { answer << o.forward.Splite(o.position); }},
    {"PosRangeD::operator=(PosRangeD const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.forward = o.wrapping;
         answer << o.forward;
     }},
    {"CPolyPosMap::operator=(CPolyPosMap const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.seamMap = o.map;
         answer << o.seamMap;
     }},
    {"CPolyPosMap::DstSegmentCount()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.DstSegmentCount() = 7;
         answer << o.map;
     }},
    {"CPolyPosMap::SrcSegmentCount()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.SrcSegmentCount() = 7;
         answer << o.map;
     }},
    {"CPolyPosMap::PosPairs()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.PosPairs().front().first = 0.25;
         answer << o.map;
     }},
    {"CPolyPosMap::FillAllSegmentNode(int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.seamMap.FillAllSegmentNode(1);
         answer << o.seamMap;
     }},
    {"CPolyPosMap::FillAllSegmentNode(int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.map.FillAllSegmentNode(2);
         answer << o.map;
     }},
    {"CPolyPosMap::FillAllSegmentNode(int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.seamMap.FillAllSegmentNode(3);
         answer << o.seamMap;
     }},
    {"CPolyPosMap::FillAllSegmentNode(int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.downward.FillAllSegmentNode(3);
         answer << o.downward;
     }},
    {"CPolyPosMap::Insert(double const&, int const&)", Memory::Own,
     [](Setting& o, Answer& answer) { answer << o.map.Insert(o.position, 1) << o.map; }},
    {"CPolyPosMap::Insert(double const&, int const&)", Memory::Own,
     [](Setting& o, Answer& answer) { answer << o.seamMap.Insert(o.position, 2) << o.seamMap; }},
    {"CPolyPosMap::Invert()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.Invert();
         answer << o.map;
     }},
    {"CPolyPosMap::IsInvertTo(CPolyPosMap const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         const CPolyPosMap inverse = !o.map;
         answer << o.map.IsInvertTo(inverse);
     }},
    {"CPolyPosMap::MakeEmpty()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.MakeEmpty();
         answer << o.map;
     }},
    {"CPolyPosMap::Normalize()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.Offset(9, 3);
         o.map.Normalize();
         answer << o.map;
     }},
    {"CPolyPosMap::Offset(double const&, int const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.Offset(o.x, 3);
         answer << o.map;
     }},
    {"CPolyPosMap::Reverse()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.Reverse();
         answer << o.map;
     }},
    {"CPolyPosMap::ReverseDirection(int)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.map.ReverseDirection(3);
         answer << o.map;
     }},
    {"CPolyPosMap::Smooth(double const&, double const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.staircase.Smooth(0.5, 0.5);
         answer << o.staircase;
     }},
    {"CPolyPosMap::Split(double const&, int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.map.Split(o.position, 1);
         answer << o.map;
     }},
    {"CPolyPosMap::Split(double const&, int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.map.Split(o.position, 2);
         answer << o.map;
     }},
    {"CPolyPosMap::Split(double const&, int const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.map.Split(o.position, 3);
         answer << o.map;
     }},
    {"CPolyPosMap::Unique(bool const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.staircase.Unique(true);
         answer << o.staircase;
     }},
    {"CPolyPosMap::operator*=(CPolyPosMap const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.map *= o.seamMap;
         answer << o.map;
     }},
    {"CPolyPosMap::operator+=(CPolyPosMap const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.firstHalf += o.secondHalf;
         answer << o.firstHalf;
     }},
};

} // namespace math::test
