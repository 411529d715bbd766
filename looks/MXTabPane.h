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

    //! The side columns' widths and the lower row's height, which is the lower piece's
    //! width.
    static EdgeInsets edges();
    //! The pieces over a window-local area of `size`, shared with the content pane type,
    //! which may ask for the lower row along its top too, or for none at its bottom.
    static void drawPieces(GeometryBuffer& buffer, const Sizef& size, float alpha,
                           bool topRow = false, bool bottomRow = true);
    //! The edges with those rows.
    static EdgeInsets edges(bool topRow, bool bottomRow);

protected:
    void populateGeometryBuffer() override;
    Rectf getUnclippedInnerRect_impl(bool skipAllPixelAlignment) const override;
};

using MXTabPaneFactory = LookFactory<MXTabPane>;

} // namespace MoxieLook
} // namespace CEGUI
