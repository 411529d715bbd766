// A container that places its children by one of five rules (none, flow, fill, grid,
// border) and lays them out again when it is resized, a child comes or goes, or a
// setting changes. It can also be dragged onto registered drop targets.
#pragma once

#include "widgets/DragEventArgs.h"
#include "widgets/Static.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Property.h>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class StaticLayout : public Static
{
public:
    enum Layout : std::uint32_t
    {
        DefaultLayout = 0,
        FlowLayout = 1,
        FillLayout = 2,
        GridLayout = 3,
        BorderLayout = 4
    };

    enum Border : std::uint32_t
    {
        NorthBorder = 0,
        SouthBorder = 1,
        EastBorder = 2,
        WestBorder = 3,
        CenterBorder = 4,
        NoBorder = 5
    };

    class LayoutException : public Exception
    {
    public:
        explicit LayoutException(const String& message);
    };

    StaticLayout(const String& type, const String& name);

    //! Resets every setting and the drag state, and listens to the mouse.
    void initialiseComponents() override;

    void SetLayout(Layout layout);
    Layout GetLayout() const { return d_layout; }
    void SetMargin(unsigned margin);
    unsigned GetMargin() const { return d_margin; }
    //! Not validated: 0 rows or columns must not reach the grid rule.
    void SetGridSize(unsigned rows, unsigned cols);
    unsigned GetGridRows() const { return d_gridRows; }
    unsigned GetGridCols() const { return d_gridCols; }
    //! Stored only: no relayout.
    void SetFlowLayoutHorizontalAlignment(HorizontalAlignment alignment);
    void SetCurrentBorder(Border border);
    Border GetCurrentBorder() const { return d_currentBorder; }

    void addChildWindowInBorder(Window* window, Border border);
    //! The window is found by its name path from the GUI context's root window.
    void addChildWindowInBorder(const String& name, Border border);
    Border GetBorderForChild(Window* window) const;

    void DoLayout();

    void SetDragAuthorized(bool authorised) { d_dragAuthorised = authorised; }
    bool IsDragging() const { return d_dragging; }
    //! Ends a drag in progress as a drop on no target does (back in place, "DropCancelled").
    //! For Escape.
    void CancelDrag();
    static bool IsDraggingOperationInProgress() { return mbDraggingInProgress; }
    void AddDropTarget(Window* window);
    void ClearDropTargets() { d_dropTargets.clear(); }
    //! Removes the target's "DropEvent" and its subscribers; the window stays a target.
    void RemoveDropTarget(Window* window);
    std::vector<std::string>& GetSourceDragInfo() { return d_sourceDragInfo; }
    void ClearSourceDragInfo() { d_sourceDragInfo.clear(); }

    //! A layout file failed on this window: the windows loaded so far (and `refusedChild`,
    //! which was never added) are destroyed. Outside a load, nothing happens.
    void abandonLoadedTree(Window* refusedChild);

protected:
    //! A drag ends with the window: the parent is unmuted, the modal state let go, and the
    //! class-wide drag state cleared.
    void onDestructionStarted(WindowEventArgs& e) override;
    void addChild_impl(Element* element) override;
    void removeChild_impl(Element* element) override;
    void onSized(ElementEventArgs& e) override;
    void onChildAdded(ElementEventArgs& e) override;
    void onChildRemoved(ElementEventArgs& e) override;
    //! A layout file sets a child's size after adding it: lay out once it is all read.
    void endInitialisation() override;

private:
    void addStaticLayoutProperties();
    void layoutUnlessMuted();
    //! Puts a child at (x, y) from this window's outer edge, with the given size.
    void place(Window& child, float x, float y, float width, float height) const;
    //! Moves the child only: the flow rule leaves sizes to the children.
    void placeAt(Window& child, float x, float y) const;
    void flowLayout(const Rectf& area);
    void fillLayout(const Rectf& area);
    void gridLayout(const Rectf& area);
    void borderLayout(const Rectf& area);

    void setDragging(bool on);
    //! Back in place; dropped on the target under the pointer if `dropHere` finds one, else
    //! cancelled.
    void endDrag(bool dropHere);
    bool MouseDown(const EventArgs& args);
    bool MouseMove(const EventArgs& args);
    bool MouseUp(const EventArgs& args);

    Layout d_layout = DefaultLayout;
    std::uint32_t d_margin = 0;
    HorizontalAlignment d_flowAlignment = HA_LEFT;
    std::uint32_t d_gridRows = 1;
    std::uint32_t d_gridCols = 1;
    Window* d_regions[5] = {};
    Border d_currentBorder = NoBorder;
    bool d_dragAuthorised = false;
    Vector2f d_mouseDownPosition{0, 0};
    std::uint32_t d_accumulatedMovement = 0;
    bool d_dragging = false;
    Window* d_mutedParent = nullptr;
    bool d_armed = false;
    std::set<Window*> d_dropTargets;
    UVector2 d_positionBeforeDrag;
    Vector2f d_grabOffset{0, 0};
    std::vector<std::string> d_sourceDragInfo;

    static bool mbDraggingInProgress;
    static StaticLayout* mplayoutModifier;
    static const unsigned muiSquaredThreshold = 50;
};

//! The layout's settings as properties. All but "Margin" read back as the empty string,
//! "Margin" as "0": they can be written, not read.
namespace StaticLayoutProperties
{
class LayoutProperty : public Property
{
public:
    LayoutProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new LayoutProperty(*this); }
};

class BorderProperty : public Property
{
public:
    BorderProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new BorderProperty(*this); }
};

class MarginProperty : public Property
{
public:
    MarginProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new MarginProperty(*this); }
};

class FlowLayoutHorizontalAlignmentProperty : public Property
{
public:
    FlowLayoutHorizontalAlignmentProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new FlowLayoutHorizontalAlignmentProperty(*this); }
};

//! "rows:R cols:C", read by character positions (see parseGridSize).
class GridSizeProperty : public Property
{
public:
    GridSizeProperty();
    String get(const PropertyReceiver* receiver) const override;
    void set(PropertyReceiver* receiver, const String& value) override;
    Property* clone() const override { return new GridSizeProperty(*this); }
};

//! Rows from the text starting at index 5, columns from 6 past the first blank (or, with
//! no blank, the same as the rows); each read as atoi reads, at least 1. A text under 5
//! characters throws std::out_of_range.
std::pair<unsigned, unsigned> parseGridSize(const std::string& text);
} // namespace StaticLayoutProperties

} // namespace MoxieLook
} // namespace CEGUI
