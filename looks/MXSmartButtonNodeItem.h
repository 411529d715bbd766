// "MoxieLook/SmartButtonNodeItem": each node a "MoxieLook/ButtonEx" ("__autoButton") with
// its icon, a red "MoxieLook/TextItem" counter ("__autoTextItem") along the button's
// bottom, and the opened image sliding in at the right while the node is selected.
#pragma once

#include "looks/LookFactory.h"
#include "widgets/SmartButtonNodeItem.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXSmartButtonNodeItem : public SmartButtonNodeItem
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/SmartButtonNodeItem";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char ButtonType[] = "MoxieLook/ButtonEx";
    static constexpr char TextItemType[] = "MoxieLook/TextItem";
    static const Colour CounterColour;

    MXSmartButtonNodeItem(const String& type, const String& name);

    void NbChildrenChanged(unsigned count) override;
    void SetSelected(bool selected) override;
    Sizef GetSizeToFit(bool selected) const override;
    Sizef GetAbsoluteButtonSize() const override;
    //! Where the opened image is drawn now, window-local (empty when none is).
    Rectf openedImageRect() const;

protected:
    ButtonEx* CreateButton() override;
    TextItem* CreateTextItem() override;
    void populateGeometryBuffer() override;

private:
    float openedWidth() const;
};

using MXSmartButtonNodeItemFactory = LookFactory<MXSmartButtonNodeItem>;

} // namespace MoxieLook
} // namespace CEGUI
