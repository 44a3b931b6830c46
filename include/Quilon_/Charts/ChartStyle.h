// How a chart is drawn: its kind, its colours and what it shows besides the
// data. Charts of profiles, histograms and palettes take one; the concrete
// style comes from an implementation library.
//
//   Ref<Charts::IChartStyle> style = Drawing::Palette::DefaultChartStyle();
//   style->SetChartType(Charts::ctBar);
//   style->SetLineColor(Drawing::Color(0, 0, 255));
#pragma once

#include "Quilon_/Drawing/Color.h"
#include "Quilon_/System/Pointer.h"

#include <cstdint>
#include <string>

namespace Quilon_::Charts {

enum ChartTypeEnumTag : std::int32_t {
    ctLine = 0,
    ctBar = 1,
    ctArea = 2,
    ctScatter = 3,
    ctStep = 4,
};
using ChartTypeEnum = ChartTypeEnumTag;

class QUILON_API IChartStyle : public virtual System::Interface {
    QUILON_INTERFACE(IChartStyle)
public:
    virtual ChartTypeEnum ChartType() = 0;
    virtual void SetChartType(ChartTypeEnum type) = 0;
    // The colour of lines, bar outlines and scatter marks.
    virtual Drawing::Color LineColor() = 0;
    virtual void SetLineColor(Drawing::Color color) = 0;
    // The colour of bars and areas.
    virtual Drawing::Color FillColor() = 0;
    virtual void SetFillColor(Drawing::Color color) = 0;
    virtual Drawing::Color BackgroundColor() = 0;
    virtual void SetBackgroundColor(Drawing::Color color) = 0;
    // In device pixels.
    virtual double LineWidth() = 0;
    virtual void SetLineWidth(double width) = 0;
    virtual bool ShowGrid() = 0;
    virtual void SetShowGrid(bool show) = 0;
    virtual std::wstring Title() = 0;
    virtual void SetTitle(const std::wstring& title) = 0;
    // Takes every value of `other`.
    virtual void CopyFrom(System::Ref<IChartStyle> other) = 0;
};

} // namespace Quilon_::Charts
