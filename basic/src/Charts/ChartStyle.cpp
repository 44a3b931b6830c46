// The chart style, and the default style of palette charts: lines in black
// on white, with a grid.
#include "Quilon_/Charts/ChartStyle.h"
#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"
#include "System/SettingsLifetime.h"

#include <string>

namespace Quilon_::Basic::Charts {

using namespace Quilon_::Charts;
using Quilon_::Drawing::Color;
using System::Pointer;
using System::Ref;

namespace {

class CChartStyle : public System::Template::ObjectImpl<CChartStyle, IChartStyle, System::ICloneable> {
public:
    CChartStyle() = default;

    ChartTypeEnum ChartType() override { return m_type; }
    void SetChartType(ChartTypeEnum type) override { m_type = type; }
    Color LineColor() override { return m_line; }
    void SetLineColor(Color color) override { m_line = color; }
    Color FillColor() override { return m_fill; }
    void SetFillColor(Color color) override { m_fill = color; }
    Color BackgroundColor() override { return m_background; }
    void SetBackgroundColor(Color color) override { m_background = color; }
    double LineWidth() override { return m_width; }
    void SetLineWidth(double width) override { m_width = width; }
    bool ShowGrid() override { return m_grid; }
    void SetShowGrid(bool show) override { m_grid = show; }
    std::wstring Title() override { return m_title; }
    void SetTitle(const std::wstring& title) override { m_title = title; }
    void CopyFrom(Ref<IChartStyle> other) override
    {
        m_type = other->ChartType();
        m_line = other->LineColor();
        m_fill = other->FillColor();
        m_background = other->BackgroundColor();
        m_width = other->LineWidth();
        m_grid = other->ShowGrid();
        m_title = other->Title();
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        Ref<IChartStyle> copy(new CChartStyle());
        copy->CopyFrom(Ref<IChartStyle>(this));
        return copy;
    }

private:
    ChartTypeEnum m_type = ctLine;
    Color m_line = Color::Black();
    Color m_fill = Color(128, 128, 128);
    Color m_background = Color::White();
    double m_width = 1.0;
    bool m_grid = true;
    std::wstring m_title;
};

void StartChartStyle()
{
    Drawing::Palette::SetDefaultChartStyle(Ref<IChartStyle>(new CChartStyle()));
}

void StopChartStyle()
{
    Drawing::Palette::ClearDefaultChartStyle();
}

const SettingsLifetime chartStyle(&StartChartStyle, &StopChartStyle, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Charts
