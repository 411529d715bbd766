// "MoxieLook/TabPane": the area under the tabs, on the module's static. Side columns
// ("TabPaneLeft", "TabPaneRight") and a lower row ("TabPaneLowerLeft", "TabPaneLower",
// "TabPaneLowerRight") around a tinted middle ("TabPaneMiddle"); no top row, as the
// tabs stand on it. Tab contents are placed inside the columns and above the lower row.
#pragma once

#include "draw/FramedFill.h"
#include "looks/LookFactory.h"
#include "widgets/Static.h"

namespace CEGUI
{
namespace MoxieLook
{
//! The pane's pieces, looked up once per window; drawn by the tab pane and the stock skins'
//! content pane type alike.
class TabPanePieces
{
public:
    TabPanePieces();
    //! The side columns' widths and the edge rows' height (the lower piece's width): a top
    //! row when asked, a bottom row unless told not to.
    EdgeInsets edges(bool topRow = false, bool bottomRow = true) const;
    //! Over a window-local area of `size`. A top row is the lower edge's straight line
    //! across the whole width: the lower corners would curl the wrong way.
    void draw(GeometryBuffer& buffer, const Sizef& size, float alpha, bool topRow = false,
              bool bottomRow = true) const;

private:
    const Image* d_left;
    const Image* d_middle;
    const Image* d_right;
    const Image* d_lowerLeft;
    const Image* d_lowerRight;
    const Image* d_lower;
};

class MXTabPane : public Static
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TabPane";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char LeftImageName[] = "TabPaneLeft";
    static constexpr char MiddleImageName[] = "TabPaneMiddle";
    static constexpr char RightImageName[] = "TabPaneRight";
    static constexpr char LowerLeftImageName[] = "TabPaneLowerLeft";
    static constexpr char LowerRightImageName[] = "TabPaneLowerRight";
    static constexpr char LowerImageName[] = "TabPaneLower";
    static const Colour MiddleColour;

    MXTabPane(const String& type, const String& name);

protected:
    void populateGeometryBuffer() override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;

private:
    TabPanePieces d_pieces;
};

using MXTabPaneFactory = LookFactory<MXTabPane>;

} // namespace MoxieLook
} // namespace CEGUI
