#include "looks/MXSelectableButtons.h"

#include "draw/ImageBesideLabel.h"
#include "draw/Imagery.h"
#include "looks/MXButtonEx.h"

#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
const Colour SelectableShading::PushedImageColour(0x00C4CDD9);
const Colour SelectableShading::EnabledTextLabelColour(0x00000000);
const Colour SelectableShading::DisabledTextLabelColour(0x00888888);

void drawSelectable(Window& window, const SelectablePicture& picture, const Colour& textColour,
                    float padding)
{
    drawSelectable(window, picture, ColourRect(textColour), padding);
}

void drawSelectable(Window& window, const SelectablePicture& picture, const ColourRect& textColours,
                    float padding)
{
    if (!hasVisibleArea(window) || !picture.image)
        return;
    const float alpha = window.getEffectiveAlpha();
    ColourRect colours(withAlpha(Colour(0x00FFFFFF), alpha));
    if (picture.state == ButtonDrawState::Pushed)
        colours = withAlpha(ColourRect(SelectableShading::PushedImageColour), alpha);
    else if (picture.state == ButtonDrawState::Disabled)
        colours = withAlpha(colours, alpha * SelectableShading::DisabledImageAlpha);
    drawImageBesideLabel(window, window.getGeometryBuffer(), *picture.image, picture.overlay,
                         colours, faded(textColours, alpha), padding, picture.scale);
}

namespace
{
void useSelectableTextColours(PushButtonEx& button)
{
    // Held opaque so that a colour a host gives keeps its own alpha when drawn.
    button.setNormalTextColour(opaque(SelectableShading::EnabledTextLabelColour));
    button.setHoverTextColour(opaque(SelectableShading::EnabledTextLabelColour));
    button.setPushedTextColour(opaque(SelectableShading::EnabledTextLabelColour));
    button.setDisabledTextColour(opaque(SelectableShading::DisabledTextLabelColour));
}

const Colour& textColourOf(const PushButtonEx& button, ButtonDrawState state)
{
    switch (state)
    {
    case ButtonDrawState::Hover:
        return button.getHoverTextColour();
    case ButtonDrawState::Pushed:
        return button.getPushedTextColour();
    case ButtonDrawState::Disabled:
        return button.getDisabledTextColour();
    case ButtonDrawState::Normal:
        break;
    }
    return button.getNormalTextColour();
}
} // namespace

// --- toggle button ----------------------------------------------------------------------

MXToggleButton::MXToggleButton(const String& type, const String& name)
    : ToggleButton(type, name), d_normal(&lookImage(NormalImageName)),
      d_highlight(&lookImage(HighlightImageName)), d_selectMark(&lookImage(SelectMarkImageName)),
      d_selectMarkHighlight(&lookImage(SelectMarkHighlightImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    useSelectableTextColours(*this);
}

// Selected, the mark is drawn in place of the normal image.
void MXToggleButton::drawNormal()
{
    drawSelectable(*this,
                   {isSelected() ? d_selectMark : d_normal, nullptr, ButtonDrawState::Normal},
                   getNormalTextColour(), LabelPadding);
}

void MXToggleButton::drawHover()
{
    drawSelectable(
        *this,
        {isSelected() ? d_selectMarkHighlight : d_highlight, nullptr, ButtonDrawState::Hover},
        getHoverTextColour(), LabelPadding);
}

void MXToggleButton::drawPushed()
{
    drawSelectable(
        *this,
        {isSelected() ? d_selectMarkHighlight : d_highlight, nullptr, ButtonDrawState::Pushed},
        getPushedTextColour(), LabelPadding);
}

void MXToggleButton::drawDisabled()
{
    drawSelectable(*this,
                   {isSelected() ? d_selectMark : d_normal, nullptr, ButtonDrawState::Disabled},
                   getDisabledTextColour(), LabelPadding);
}

// --- radio button -----------------------------------------------------------------------

MXRadioButton::MXRadioButton(const String& type, const String& name)
    : RadioButtonEx(type, name), d_normal(&lookImage(NormalImageName)),
      d_focus(&lookImage(FocusImageName)), d_selected(&lookImage(SelectedImageName)),
      d_selectedFocus(&lookImage(SelectedFocusImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXRadioButton, float, "RadioButtonRelativeWidth",
                          "Property to get/set the state image's width as a multiple of its "
                          "own. Value is a float.",
                          &MXRadioButton::setImageRelativeWidth,
                          &MXRadioButton::getImageRelativeWidth, 1.0f);
    CEGUI_DEFINE_PROPERTY(MXRadioButton, float, "RadioButtonRelativeHeight",
                          "Property to get/set the state image's height as a multiple of its "
                          "own. Value is a float.",
                          &MXRadioButton::setImageRelativeHeight,
                          &MXRadioButton::getImageRelativeHeight, 1.0f);
}

namespace
{
float usableScale(float scale)
{
    // Far past any display, sizes would overflow into no number.
    constexpr float Largest = 1000.0f;
    return scale > 0 && std::isfinite(scale) ? std::min(scale, Largest) : 0.0f;
}
} // namespace

void MXRadioButton::setImageRelativeWidth(float scale)
{
    d_imageScale.d_width = usableScale(scale);
    invalidate();
}

void MXRadioButton::setImageRelativeHeight(float scale)
{
    d_imageScale.d_height = usableScale(scale);
    invalidate();
}

void MXRadioButton::initialiseComponents()
{
    RadioButtonEx::initialiseComponents();
    // The extended button's frames and fills, as "MoxieLook/ButtonEx" has them.
    auto frame = [](const std::array<const char*, NinePieceFrame::PieceCount>& names)
    {
        NinePieceFrame built;
        built.setImages(names);
        return built;
    };
    using B = MXButtonEx;
    SetNormalFrame(
        frame({B::NormalTopLeftImageName, B::NormalTopRightImageName, B::NormalBottomLeftImageName,
               B::NormalBottomRightImageName, B::NormalLeftImageName, B::NormalTopImageName,
               B::NormalRightImageName, B::NormalBottomImageName}));
    SetHoverFrame(
        frame({B::HoverTopLeftImageName, B::HoverTopRightImageName, B::HoverBottomLeftImageName,
               B::HoverBottomRightImageName, B::HoverLeftImageName, B::HoverTopImageName,
               B::HoverRightImageName, B::HoverBottomImageName}));
    SetPushedFrame(
        frame({B::PushedTopLeftImageName, B::PushedTopRightImageName, B::PushedBottomLeftImageName,
               B::PushedBottomRightImageName, B::PushedLeftImageName, B::PushedTopImageName,
               B::PushedRightImageName, B::PushedBottomImageName}));
    SetDisabledFrame(frame({B::DisabledTopLeftImageName, B::DisabledTopRightImageName,
                            B::DisabledBottomLeftImageName, B::DisabledBottomRightImageName,
                            B::DisabledLeftImageName, B::DisabledTopImageName,
                            B::DisabledRightImageName, B::DisabledBottomImageName}));
    SetNormalBackground(&lookImage(B::NormalFillImageName));
    SetHoverBackground(&lookImage(B::HoverFillImageName));
    SetPushedBackground(&lookImage(B::PushedFillImageName));
    SetDisabledBackground(&lookImage(B::DisabledFillImageName));
    setDisabledColour(B::DisabledBackgroundColour);
    // The label sits on the window's own background: dark in every enabled state.
    useSelectableTextColours(*this);
}

void MXRadioButton::populateGeometryBuffer()
{
    const ButtonDrawState state = drawStateOf(*this);
    const bool lit = state == ButtonDrawState::Hover || state == ButtonDrawState::Pushed;
    const Image* image =
        isSelected() ? (lit ? d_selectedFocus : d_selected) : (lit ? d_focus : d_normal);
    drawSelectable(*this, {image, nullptr, state, d_imageScale}, textColourOf(*this, state),
                   LabelPadding);
}

// --- check box --------------------------------------------------------------------------

MXCheckbox::MXCheckbox(const String& type, const String& name)
    : RedrawnWhenUncovered<CEGUI::ToggleButton>(type, name),
      d_normalText(opaque(EnabledTextLabelColour)), d_hoverText(opaque(EnabledTextLabelColour)),
      d_pushedText(opaque(EnabledTextLabelColour)), d_disabledText(opaque(DisabledTextLabelColour)),
      d_normal(&lookImage(NormalImageName)), d_highlight(&lookImage(HighlightImageName)),
      d_checkMark(&lookImage(CheckMarkImageName))
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    const String propertyOrigin(WidgetTypeName);
    CEGUI_DEFINE_PROPERTY(MXCheckbox, ColourRect, "NormalTextColour",
                          "Property to get/set the label's colour. Value is \"aarrggbb\".",
                          &MXCheckbox::setNormalTextColour, &MXCheckbox::getNormalTextColour,
                          ColourRect(opaque(EnabledTextLabelColour)));
    CEGUI_DEFINE_PROPERTY(MXCheckbox, ColourRect, "HoverTextColour",
                          "Property to get/set the label's colour under the pointer. Value is "
                          "\"aarrggbb\".",
                          &MXCheckbox::setHoverTextColour, &MXCheckbox::getHoverTextColour,
                          ColourRect(opaque(EnabledTextLabelColour)));
    CEGUI_DEFINE_PROPERTY(MXCheckbox, ColourRect, "PushedTextColour",
                          "Property to get/set the label's colour while pressed. Value is "
                          "\"aarrggbb\".",
                          &MXCheckbox::setPushedTextColour, &MXCheckbox::getPushedTextColour,
                          ColourRect(opaque(EnabledTextLabelColour)));
    CEGUI_DEFINE_PROPERTY(MXCheckbox, ColourRect, "DisabledTextColour",
                          "Property to get/set the label's colour while disabled. Value is "
                          "\"aarrggbb\".",
                          &MXCheckbox::setDisabledTextColour, &MXCheckbox::getDisabledTextColour,
                          ColourRect(opaque(DisabledTextLabelColour)));
}

void MXCheckbox::setLabelColour(ColourRect& slot, const ColourRect& colours)
{
    slot = colours;
    invalidate();
}

void MXCheckbox::populateGeometryBuffer()
{
    const ButtonDrawState state = drawStateOf(*this);
    const bool lit = state == ButtonDrawState::Hover || state == ButtonDrawState::Pushed;
    drawSelectable(*this,
                   {lit ? d_highlight : d_normal, isSelected() ? d_checkMark : nullptr, state},
                   state == ButtonDrawState::Disabled ? d_disabledText
                   : state == ButtonDrawState::Hover  ? d_hoverText
                   : state == ButtonDrawState::Pushed ? d_pushedText
                                                      : d_normalText,
                   LabelPadding);
}

void MXCheckbox::onSelectStateChange(WindowEventArgs& e)
{
    CEGUI::ToggleButton::onSelectStateChange(e);
    invalidate();
}

} // namespace MoxieLook
} // namespace CEGUI
