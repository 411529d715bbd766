// "MoxieLook/Tree": CEGUI's own tree of TreeItems (a class apart from the module's TreeView)
// on the tree view's dark field ("TreeViewFill") inside the list frame ("StaticFrameList..."),
// with the module's scroll bars. Branches show "NavigateClose" while closed and
// "NavigateOpen" while open, as the tree view does; items without a selection brush of their
// own get "ListboxSelectionBrush", and CEGUI's white item text reads on the dark field.
#pragma once

#include "draw/NinePieceFrame.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/Tree.h>
#include <array>

namespace CEGUI
{
namespace MoxieLook
{
class MXTree : public RedrawnWhenUncovered<Tree>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Tree";
    static constexpr char VertScrollbarType[] = "MoxieLook/VerticalScrollbar";
    static constexpr char HorzScrollbarType[] = "MoxieLook/HorizontalScrollbar";
    static constexpr char FillImageName[] = "TreeViewFill";
    static constexpr char BranchClosedImageName[] = "NavigateClose";
    static constexpr char BranchOpenImageName[] = "NavigateOpen";
    static constexpr char SelectionBrushImageName[] = "ListboxSelectionBrush";
    static const Colour SelectionColour;
    //! The imagery CEGUI's tree draws its branch buttons with, registered once.
    static constexpr char ButtonLookName[] = "MoxieLook/TreeButtons";
    static constexpr float ScrollbarThickness = 16.0f;
    //! The names CEGUI's tree gives its bars.
    static constexpr char VertScrollbarName[] = "__auto_vscrollbar__";
    static constexpr char HorzScrollbarName[] = "__auto_hscrollbar__";

    MXTree(const String& type, const String& name);

    void initialiseComponents() override;
    //! CEGUI's tree set up from its look: here from the module's own parts and imagery.
    void initialise() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    //! The stock skins' "FrameColours": tints the frame.
    void setFrameColours(const ColourRect& colours);
    const ColourRect& getFrameColours() const { return d_frameColours; }

protected:
    //! Window-local: inside the frame, clear of the bars shown.
    Rectf getTreeRenderArea() const override;
    Scrollbar* createVertScrollbar(const String& name) const override;
    Scrollbar* createHorzScrollbar(const String& name) const override;
    void cacheTreeBaseImagery() override;
    void populateGeometryBuffer() override;
    void onListContentsChanged(WindowEventArgs& e) override;

private:
    void layOutBars();
    //! Gives items (and their sub-items) the look's selection brush where they have none.
    void styleItems(const std::vector<TreeItem*>& items);

    //! The bars' shown and hidden events, let go with the look.
    std::array<Event::ScopedConnection, 4> d_barWatches;
    NinePieceFrame d_frame;
    const Image* d_fill;  //!< fetched once
    const Image* d_brush; //!< the items' selection brush, fetched once
    ColourRect d_frameColours{Colour(0xFFFFFFFF)};
};

using MXTreeFactory = LookFactory<MXTree>;

} // namespace MoxieLook
} // namespace CEGUI
