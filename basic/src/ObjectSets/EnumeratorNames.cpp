// The names of the measurement selectors that the reference library's
// operators take, entered for EnumTextRowsOf, so that tools read them from a
// command line ("ssmArea,ssmPerimeter"). The core gives these enumerations
// no text of their own; the names are the enumerators', in their order.
#include "Quilon_/ObjectSets/Measurements/Functions.h"
#include "Quilon_/System/EnumText.h"

#include <span>

namespace Quilon_::Basic::ObjectSets {

namespace {

namespace QM = Quilon_::ObjectSets::Measurements;
using System::Detail::EnumTextRow;

std::span<const EnumTextRow> ShapeMeasurementNames()
{
    static constexpr EnumTextRow rows[] = {
        {QM::ssmArea, L"ssmArea"},
        {QM::ssmPerimeter, L"ssmPerimeter"},
        {QM::ssmCentroidX, L"ssmCentroidX"},
        {QM::ssmCentroidY, L"ssmCentroidY"},
        {QM::ssmCentroidZ, L"ssmCentroidZ"},
        {QM::ssmBoundingBoxLeft, L"ssmBoundingBoxLeft"},
        {QM::ssmBoundingBoxTop, L"ssmBoundingBoxTop"},
        {QM::ssmBoundingBoxFront, L"ssmBoundingBoxFront"},
        {QM::ssmBoundingBoxWidth, L"ssmBoundingBoxWidth"},
        {QM::ssmBoundingBoxHeight, L"ssmBoundingBoxHeight"},
        {QM::ssmBoundingBoxDepth, L"ssmBoundingBoxDepth"},
        {QM::ssmEquivalentDiameter, L"ssmEquivalentDiameter"},
        {QM::ssmElongation, L"ssmElongation"},
    };
    return rows;
}

std::span<const EnumTextRow> StatisticNames()
{
    static constexpr EnumTextRow rows[] = {
        {QM::stMean, L"stMean"},
        {QM::stMinimum, L"stMinimum"},
        {QM::stMaximum, L"stMaximum"},
        {QM::stSum, L"stSum"},
        {QM::stStandardDeviation, L"stStandardDeviation"},
        {QM::stMedian, L"stMedian"},
        {QM::stPercentile, L"stPercentile"},
    };
    return rows;
}

const System::Detail::EnumTextRegistration shapeMeasurementNames(typeid(QM::StandardShapeMeasurementEnum),
                                                                 &ShapeMeasurementNames);
const System::Detail::EnumTextRegistration statisticNames(typeid(QM::StatisticsEnum), &StatisticNames);

} // namespace

} // namespace Quilon_::Basic::ObjectSets
