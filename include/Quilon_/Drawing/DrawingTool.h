// Drawing tools: what turns the clicks and drags of a user on a view into
// shapes, and selects, moves and deletes them. The mode says which shape
// the next input draws; the post-drawing mode what happens once it is
// finished.
//
//   Ref<Drawing::IDrawingTool> tool = Drawing::DrawingTool::New();
//   tool->SetDrawingMode(Drawing::dmRectangle);
//   tool->BeginDrawing({10, 10});
//   tool->MovePoint({40, 30});          // rubber band
//   tool->EndDrawing();                 // fires ShapeDrawn with the rectangle
//
// The concrete tool, and how it draws its rubber bands, come from a
// rendering library.
#pragma once

#include "Quilon_/Drawing/DrawingMode.h"
#include "Quilon_/Drawing/Point.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Drawing {

class IDrawable;
class IFont;
class IGraphicContext;
class IGraphicPropertiesCollection;
class ILineDrawer;
class IWorldContext;

// How clicked points are placed on the pixel grid.
enum CoordinatesAlignmentEnumTag : std::int32_t {
    // Where they were clicked.
    caNone = 0,
    // On the corners of pixels.
    caPixelCorner = 1,
    // On the centres of pixels.
    caPixelCenter = 2,
};
using CoordinatesAlignmentEnum = CoordinatesAlignmentEnumTag;

// What the Escape key does while a shape is being drawn.
enum EscapeActionEnumTag : std::int32_t {
    // Drops the shape.
    eaCancel = 0,
    // Drops the last point only.
    eaRemoveLastPoint = 1,
    // Finishes the shape with the points so far.
    eaFinish = 2,
};
using EscapeActionEnum = EscapeActionEnumTag;

// What a click on a drawable does to the selection.
enum SelectionModeEnumTag : std::int32_t {
    // The drawable becomes the only one selected.
    smSingle = 0,
    // The drawable joins the selection.
    smAdd = 1,
    // The drawable's selection is reversed.
    smToggle = 2,
    // Nothing can be selected.
    smNone = 3,
};
using SelectionModeEnum = SelectionModeEnumTag;

using DrawingToolEvent = System::Event<System::Ref<System::IEventArgs>>;

class QUILON_API IDrawingTool : public virtual System::Interface {
    QUILON_INTERFACE(IDrawingTool)
public:
    // Modes. A change of mode cancels a shape being drawn.
    virtual DrawingModeEnum DrawingMode() = 0;
    virtual void SetDrawingMode(DrawingModeEnum mode) = 0;
    virtual PostDrawingModeEnum PostDrawingMode() = 0;
    virtual void SetPostDrawingMode(PostDrawingModeEnum mode) = 0;
    virtual SelectionModeEnum SelectionMode() = 0;
    virtual void SetSelectionMode(SelectionModeEnum mode) = 0;
    virtual EscapeActionEnum EscapeAction() = 0;
    virtual void SetEscapeAction(EscapeActionEnum action) = 0;
    virtual CoordinatesAlignmentEnum CoordinatesAlignment() = 0;
    virtual void SetCoordinatesAlignment(CoordinatesAlignmentEnum alignment) = 0;
    // A disabled tool ignores input.
    virtual bool Enabled() = 0;
    virtual void SetEnabled(bool enabled) = 0;

    // Drawing a shape, in world coordinates.
    virtual bool IsDrawing() = 0;
    virtual void BeginDrawing(const Point<double>& point) = 0;
    // Fixes the moving point and starts the next one.
    virtual void AddPoint(const Point<double>& point) = 0;
    // Moves the point that follows the pointer.
    virtual void MovePoint(const Point<double>& point) = 0;
    virtual void RemoveLastPoint() = 0;
    // Finishes the shape; fires ShapeDrawn, then acts by PostDrawingMode.
    virtual void EndDrawing() = 0;
    virtual void CancelDrawing() = 0;
    // The points of the shape being drawn, the moving one last.
    virtual std::vector<Point<double>> Points() = 0;
    virtual std::int64_t PointCount() = 0;
    // The number of points that finishes a shape of the present mode by
    // itself (2 for a line, 3 for dmCircle3Points); -1 when the user ends
    // it (polylines, polygons).
    virtual std::int64_t RequiredPointCount() = 0;

    // The drawables that the tool works on, in drawing order.
    virtual std::vector<System::Ref<IDrawable>> Drawables() = 0;
    virtual void AddDrawable(System::Ref<IDrawable> drawable) = 0;
    virtual bool RemoveDrawable(System::Ref<IDrawable> drawable) = 0;
    virtual void ClearDrawables() = 0;
    virtual void BringToFront(System::Ref<IDrawable> drawable) = 0;
    virtual void SendToBack(System::Ref<IDrawable> drawable) = 0;
    // The topmost drawable within HitTolerance() of `point`, or null.
    virtual System::Pointer<IDrawable, 0> HitTest(const Point<double>& point) = 0;
    // In device pixels.
    virtual double HitTolerance() = 0;
    virtual void SetHitTolerance(double tolerance) = 0;

    // The selection. Changes fire SelectionChanged.
    virtual std::vector<System::Ref<IDrawable>> Selection() = 0;
    // Acts by SelectionMode.
    virtual void Select(System::Ref<IDrawable> drawable) = 0;
    virtual void Deselect(System::Ref<IDrawable> drawable) = 0;
    virtual bool IsSelected(System::Ref<IDrawable> drawable) = 0;
    virtual void SelectAll() = 0;
    virtual void ClearSelection() = 0;
    // Removes the selected drawables from Drawables().
    virtual void DeleteSelection() = 0;
    virtual void MoveSelection(double dx, double dy) = 0;
    // Clones of the selected drawables.
    virtual std::vector<System::Ref<IDrawable>> CopySelection() = 0;
    // Adds `drawables` and makes them the selection.
    virtual void Paste(const std::vector<System::Ref<IDrawable>>& drawables) = 0;

    // Constraints on the points drawn.
    virtual bool SnapToGrid() = 0;
    virtual void SetSnapToGrid(bool snap) = 0;
    // In world units.
    virtual double GridSpacing() = 0;
    virtual void SetGridSpacing(double spacing) = 0;
    // Rectangles become squares, ellipses circles.
    virtual bool KeepAspectRatio() = 0;
    virtual void SetKeepAspectRatio(bool keep) = 0;
    // Segments turn in steps of 45 degrees.
    virtual bool ConstrainAngle() = 0;
    virtual void SetConstrainAngle(bool constrain) = 0;

    // What new shapes are drawn with.
    virtual System::Ref<IGraphicPropertiesCollection> Properties() = 0;
    virtual void SetProperties(System::Ref<IGraphicPropertiesCollection> properties) = 0;
    // The text of dmText shapes.
    virtual std::wstring Text() = 0;
    virtual void SetText(const std::wstring& text) = 0;
    virtual System::Pointer<IFont, 0> Font() = 0;
    virtual void SetFont(System::Pointer<IFont, 0> font) = 0;
    // Where rubber bands are drawn; null while the tool is not on a view.
    virtual System::Pointer<IWorldContext, 0> WorldContext() = 0;
    virtual void SetWorldContext(System::Pointer<IWorldContext, 0> context) = 0;
    virtual System::Pointer<IGraphicContext, 0> GraphicContext() = 0;
    virtual void SetGraphicContext(System::Pointer<IGraphicContext, 0> context) = 0;
    // How freehand and assisted lines are rasterised; null for plain lines.
    virtual System::Pointer<ILineDrawer, 0> LineDrawer() = 0;
    virtual void SetLineDrawer(System::Pointer<ILineDrawer, 0> drawer) = 0;

    // A shape was finished; the args' sender is the tool.
    virtual DrawingToolEvent& ShapeDrawn() = 0;
    virtual DrawingToolEvent& SelectionChanged() = 0;
    virtual DrawingToolEvent& DrawingModeChanged() = 0;
    // Cancels drawing, clears the selection and puts every setting back to
    // its default.
    virtual void Reset() = 0;
};

namespace DrawingTool {
using Factory = System::Functions::Template::Factory<System::Ref<IDrawingTool>()>;
extern QUILON_API Factory New;
} // namespace DrawingTool

} // namespace Quilon_::Drawing
