// The graphic properties classes, behind the New objects of each kind, and
// the defaults that new objects start from: a black pen of width 1, solid
// lines, no fill, no arrow heads but at the end, no centre marks, whole
// circles, small crosses for points, and black text in the device's font.
#include "Quilon_/Drawing/ArrowProperties.h"
#include "Quilon_/Drawing/CenterProperties.h"
#include "Quilon_/Drawing/CircleProperties.h"
#include "Quilon_/Drawing/EllipseProperties.h"
#include "Quilon_/Drawing/Font.h"
#include "Quilon_/Drawing/PointProperties.h"
#include "Quilon_/Drawing/StandardProperties.h"
#include "Quilon_/Drawing/TextProperties.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"
#include "System/SettingsLifetime.h"

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::Pointer;
using System::Ref;

namespace {

// What every properties class shares: its values are one struct, whose
// member initialisers are the built-in defaults. Derived reads the values
// of any object of interface I through `static Values ValuesOf(I&)`, so
// that CopyFrom takes them from another library's object as well; Defaults
// is the DefaultValues function of the kind.
template <class Derived, class I, class Values, Ref<I> (*Defaults)()>
class CProperties : public System::Template::ObjectImpl<Derived, I, System::ICloneable> {
public:
    CProperties() = default;
    explicit CProperties(const Values& values) : m_values(values) {}

    void CopyFrom(Ref<IGraphicProperties> source) override
    {
        Pointer<I, 0> same(source);
        if (same)
            m_values = Derived::ValuesOf(*same);
    }
    // The thread's defaults; the built-in ones when none are set.
    void Reset() override
    {
        Pointer<I, 0> defaults(Defaults());
        m_values = defaults ? Derived::ValuesOf(*defaults) : Values();
    }

    Pointer<System::ICloneable, 1> Clone() override
    {
        return Pointer<System::ICloneable, 1>(new Derived(m_values));
    }

protected:
    Values m_values;
};

// A getter and a setter over one field of m_values.
#define QUILON_BASIC_PROPERTY(Type, Name)                                                                    \
    Type Name() override                                                                                     \
    {                                                                                                        \
        return m_values.Name;                                                                                \
    }                                                                                                        \
    void Set##Name(Type value) override                                                                      \
    {                                                                                                        \
        m_values.Name = value;                                                                               \
    }

struct StandardValues {
    Color PenColor = Color::Black();
    double PenWidth = 1.0;
    LineStyleEnum LineStyle = lsSolid;
    Color FillColor = Color::White();
    FillStyleEnum FillStyle = fsNone;
    HatchStyleEnum HatchStyle = hsCross;
    Color BackColor = Color::White();
    BackModeEnum BackMode = bmTransparent;
    RasterOpEnum RasterOp = roCopy;
    double Opacity = 1.0;
    bool Antialiased = true;
};

class CStandardProperties : public CProperties<CStandardProperties, IStandardProperties, StandardValues,
                                               &StandardProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static StandardValues ValuesOf(IStandardProperties& p)
    {
        return {p.PenColor(),  p.PenWidth(), p.LineStyle(), p.FillColor(), p.FillStyle(),  p.HatchStyle(),
                p.BackColor(), p.BackMode(), p.RasterOp(),  p.Opacity(),   p.Antialiased()};
    }
    QUILON_BASIC_PROPERTY(Color, PenColor)
    QUILON_BASIC_PROPERTY(double, PenWidth)
    QUILON_BASIC_PROPERTY(LineStyleEnum, LineStyle)
    QUILON_BASIC_PROPERTY(Color, FillColor)
    QUILON_BASIC_PROPERTY(FillStyleEnum, FillStyle)
    QUILON_BASIC_PROPERTY(HatchStyleEnum, HatchStyle)
    QUILON_BASIC_PROPERTY(Color, BackColor)
    QUILON_BASIC_PROPERTY(BackModeEnum, BackMode)
    QUILON_BASIC_PROPERTY(RasterOpEnum, RasterOp)
    QUILON_BASIC_PROPERTY(double, Opacity)
    QUILON_BASIC_PROPERTY(bool, Antialiased)
};

struct ArrowValues {
    ArrowStyleEnum StartStyle = asNone;
    ArrowStyleEnum EndStyle = asClosed;
    double HeadLength = 10.0;
    double HeadWidth = 8.0;
    bool HeadFilled = true;
    bool ShowLength = false;
    bool ShowAngle = false;
    double LabelOffset = 4.0;
};

class CArrowProperties
    : public CProperties<CArrowProperties, IArrowProperties, ArrowValues, &ArrowProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static ArrowValues ValuesOf(IArrowProperties& p)
    {
        return {p.StartStyle(), p.EndStyle(),   p.HeadLength(), p.HeadWidth(),
                p.HeadFilled(), p.ShowLength(), p.ShowAngle(),  p.LabelOffset()};
    }
    QUILON_BASIC_PROPERTY(ArrowStyleEnum, StartStyle)
    QUILON_BASIC_PROPERTY(ArrowStyleEnum, EndStyle)
    QUILON_BASIC_PROPERTY(double, HeadLength)
    QUILON_BASIC_PROPERTY(double, HeadWidth)
    QUILON_BASIC_PROPERTY(bool, HeadFilled)
    QUILON_BASIC_PROPERTY(bool, ShowLength)
    QUILON_BASIC_PROPERTY(bool, ShowAngle)
    QUILON_BASIC_PROPERTY(double, LabelOffset)
};

struct CenterValues {
    bool ShowCenter = false;
    PointSymbolEnum CenterSymbol = psCross;
    double CenterSize = 7.0;
    Color CenterColor = Color::Black();
    bool ShowAxes = false;
    double AxesLength = 1.0;
};

class CCenterProperties : public CProperties<CCenterProperties, ICenterProperties, CenterValues,
                                             &CenterProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static CenterValues ValuesOf(ICenterProperties& p)
    {
        return {p.ShowCenter(),  p.CenterSymbol(), p.CenterSize(),
                p.CenterColor(), p.ShowAxes(),     p.AxesLength()};
    }
    QUILON_BASIC_PROPERTY(bool, ShowCenter)
    QUILON_BASIC_PROPERTY(PointSymbolEnum, CenterSymbol)
    QUILON_BASIC_PROPERTY(double, CenterSize)
    QUILON_BASIC_PROPERTY(Color, CenterColor)
    QUILON_BASIC_PROPERTY(bool, ShowAxes)
    QUILON_BASIC_PROPERTY(double, AxesLength)
};

struct CircleValues {
    ArcDrawingStyleEnum ArcDrawingStyle = adsArc;
    bool ShowRadius = false;
    bool ShowDiameter = false;
    double StartAngle = 0.0;
    double SweepAngle = 360.0;
};

class CCircleProperties : public CProperties<CCircleProperties, ICircleProperties, CircleValues,
                                             &CircleProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static CircleValues ValuesOf(ICircleProperties& p)
    {
        return {p.ArcDrawingStyle(), p.ShowRadius(), p.ShowDiameter(), p.StartAngle(), p.SweepAngle()};
    }
    QUILON_BASIC_PROPERTY(ArcDrawingStyleEnum, ArcDrawingStyle)
    QUILON_BASIC_PROPERTY(bool, ShowRadius)
    QUILON_BASIC_PROPERTY(bool, ShowDiameter)
    QUILON_BASIC_PROPERTY(double, StartAngle)
    QUILON_BASIC_PROPERTY(double, SweepAngle)
};

struct PointValues {
    PointSymbolEnum Symbol = psCross;
    double SymbolSize = 5.0;
    bool ShowLabel = false;
    bool ShowCoordinates = false;
};

class CPointProperties
    : public CProperties<CPointProperties, IPointProperties, PointValues, &PointProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static PointValues ValuesOf(IPointProperties& p)
    {
        return {p.Symbol(), p.SymbolSize(), p.ShowLabel(), p.ShowCoordinates()};
    }
    QUILON_BASIC_PROPERTY(PointSymbolEnum, Symbol)
    QUILON_BASIC_PROPERTY(double, SymbolSize)
    QUILON_BASIC_PROPERTY(bool, ShowLabel)
    QUILON_BASIC_PROPERTY(bool, ShowCoordinates)
};

struct EllipseValues {
    bool ShowAxes = false;
    bool ShowFoci = false;
};

class CEllipseProperties : public CProperties<CEllipseProperties, IEllipseProperties, EllipseValues,
                                              &EllipseProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static EllipseValues ValuesOf(IEllipseProperties& p) { return {p.ShowAxes(), p.ShowFoci()}; }
    QUILON_BASIC_PROPERTY(bool, ShowAxes)
    QUILON_BASIC_PROPERTY(bool, ShowFoci)
};

// The font is shared, not copied, by copies of text properties: a font is
// chosen as a whole and replaced with SetFont.
struct TextValues {
    Pointer<IFont, 0> Font;
    Color TextColor = Color::Black();
};

using FontPointer = Pointer<IFont, 0>;

class CTextProperties
    : public CProperties<CTextProperties, ITextProperties, TextValues, &TextProperties::DefaultValues> {
public:
    using CProperties::CProperties;
    static TextValues ValuesOf(ITextProperties& p) { return {p.Font(), p.TextColor()}; }
    QUILON_BASIC_PROPERTY(FontPointer, Font)
    QUILON_BASIC_PROPERTY(Color, TextColor)
};

#undef QUILON_BASIC_PROPERTY

// New objects start from the calling thread's defaults.
template <class C, class I>
Ref<I> NewProperties()
{
    Ref<I> made(new C());
    made->Reset();
    return made;
}

template <class C, class I, class Factory>
void Register(Factory& factory, const wchar_t* name, void (*setDefaults)(Ref<I>))
{
    factory.Register(name, &NewProperties<C, I>);
    setDefaults(Ref<I>(new C()));
}

void StartProperties()
{
    Register<CStandardProperties>(StandardProperties::New, L"Standard properties",
                                  &StandardProperties::SetDefaultValues);
    Register<CArrowProperties>(ArrowProperties::New, L"Arrow properties", &ArrowProperties::SetDefaultValues);
    Register<CCenterProperties>(CenterProperties::New, L"Center properties",
                                &CenterProperties::SetDefaultValues);
    Register<CCircleProperties>(CircleProperties::New, L"Circle properties",
                                &CircleProperties::SetDefaultValues);
    Register<CPointProperties>(PointProperties::New, L"Point properties", &PointProperties::SetDefaultValues);
    Register<CEllipseProperties>(EllipseProperties::New, L"Ellipse properties",
                                 &EllipseProperties::SetDefaultValues);
    Register<CTextProperties>(TextProperties::New, L"Text properties", &TextProperties::SetDefaultValues);
}

// The defaults go at shut-down, so that nothing of this library outlives it.
void StopProperties()
{
    StandardProperties::ClearDefaultValues();
    ArrowProperties::ClearDefaultValues();
    CenterProperties::ClearDefaultValues();
    CircleProperties::ClearDefaultValues();
    PointProperties::ClearDefaultValues();
    EllipseProperties::ClearDefaultValues();
    TextProperties::ClearDefaultValues();
}

const SettingsLifetime properties(&StartProperties, &StopProperties, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Drawing
