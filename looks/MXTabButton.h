// "MoxieLook/TabButton": one tab header. A tab at rest stands 3 pixels lower than the
// selected one, greyed towards its foot and closed by a lower row; the selected tab
// ("...Selected" images, no lower row) opens into the pane below. A tab under the pointer
// is drawn with the selected set, still 3 pixels lower and lighter greyed, unless it is
// the selected tab, which stays as it is.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"

#include <CEGUI/widgets/TabButton.h>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXTabButton : public RedrawnWhenUncovered<TabButton>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TabButton";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char LeftNormalImageName[] = "TabButtonLeftNormal";
    static constexpr char MiddleNormalImageName[] = "TabButtonMiddleNormal";
    static constexpr char RightNormalImageName[] = "TabButtonRightNormal";
    static constexpr char UpperLeftNormalImageName[] = "TabButtonUpperLeftNormal";
    static constexpr char UpperRightNormalImageName[] = "TabButtonUpperRightNormal";
    static constexpr char UpperNormalImageName[] = "TabButtonUpperNormal";
    static constexpr char LowerNormalImageName[] = "TabButtonLowerNormal";
    static constexpr char LowerLeftNormalImageName[] = "TabButtonLowerLeftNormal";
    static constexpr char LowerRightNormalImageName[] = "TabButtonLowerRightNormal";
    static constexpr char LeftSelectedImageName[] = "TabButtonLeftSelected";
    static constexpr char MiddleSelectedImageName[] = "TabButtonMiddleSelected";
    static constexpr char RightSelectedImageName[] = "TabButtonRightSelected";
    static constexpr char UpperLeftSelectedImageName[] = "TabButtonUpperLeftSelected";
    static constexpr char UpperRightSelectedImageName[] = "TabButtonUpperRightSelected";
    static constexpr char UpperSelectedImageName[] = "TabButtonUpperSelected";
    //! How far a tab that is not selected stands lower.
    static constexpr float NormalShift = 3.0f;
    static const Colour EnabledTextLabelColour;
    static const Colour DisabledTextLabelColour;
    //! Tint of the selected (and hovered) tab's middle, and of the pane.
    static const Colour SelectedMiddleColour;
    //! Foot of the greying gradients of a tab at rest and of a hovered one.
    static const Colour NormalGradientFootColour;
    static const Colour HoverGradientFootColour;

    MXTabButton(const String& type, const String& name);

    //! A hovered tab is labelled in the pushed colour.
    const Colour& getNormalTextColour() const { return d_normalTextColour; }
    const Colour& getPushedTextColour() const { return d_pushedTextColour; }
    const Colour& getDisabledTextColour() const { return d_disabledTextColour; }
    void setNormalTextColour(const Colour& colour);
    void setPushedTextColour(const Colour& colour);
    void setDisabledTextColour(const Colour& colour);
    //! The stock skins' label colours under the pointer and on the selected tab; until set,
    //! the pushed colour.
    Colour getHoverTextColour() const { return d_hoverTextColour.value_or(d_pushedTextColour); }
    void setHoverTextColour(const Colour& colour);
    Colour getSelectedTextColour() const
    {
        return d_selectedTextColour.value_or(d_pushedTextColour);
    }
    void setSelectedTextColour(const Colour& colour);

protected:
    //! Under the pointer: hover; pressed or selected: pushed; disabled; else normal.
    void populateGeometryBuffer() override;
    void drawNormal();
    void drawHover();
    void drawPushed();
    //! A disabled tab at rest, its label greyed.
    void drawDisabled();

private:
    void drawAtRest(const Colour& textColour);
    //! The selected set, `shift` pixels lower, its middle in `middle`.
    void drawSelectedSet(float shift, const ColourRect& middle, const Colour& textColour);
    void drawLabel(float top, const Colour& colour);

    const Image* d_leftNormal;
    const Image* d_middleNormal;
    const Image* d_rightNormal;
    const Image* d_upperLeftNormal;
    const Image* d_upperRightNormal;
    const Image* d_upperNormal;
    const Image* d_lowerNormal;
    const Image* d_lowerLeftNormal;
    const Image* d_lowerRightNormal;
    const Image* d_leftSelected;
    const Image* d_middleSelected;
    const Image* d_rightSelected;
    const Image* d_upperLeftSelected;
    const Image* d_upperRightSelected;
    const Image* d_upperSelected;
    std::optional<Colour> d_hoverTextColour;
    std::optional<Colour> d_selectedTextColour;
    // Opaque: a colour a host gives keeps its own alpha when drawn.
    Colour d_normalTextColour{opaque(EnabledTextLabelColour)};
    Colour d_pushedTextColour{opaque(EnabledTextLabelColour)};
    Colour d_disabledTextColour{opaque(DisabledTextLabelColour)};
};

using MXTabButtonFactory = LookFactory<MXTabButton>;

} // namespace MoxieLook
} // namespace CEGUI
