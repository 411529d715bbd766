// The selectable buttons: "MoxieLook/ToggleButton", "MoxieLook/RadioButton" and
// "MoxieLook/Checkbox", each a state image beside its label.
// Images: "TaskbarButtonNormal", "TaskbarButtonHover", "TaskbarButtonMark",
// "TaskbarButtonMarkHover" (toggle); "LiftMiddleNormal", "LiftMiddleFocus",
// "LiftMiddlePushed", "LiftMiddlePushedFocus" (radio); "CheckboxNormal", "CheckboxHover",
// "CheckboxMark" (check box); the radio button's unused ButtonEx frames as "MoxieLook/ButtonEx".
// Held down, the state image is shaded; disabled, it fades and the label turns grey.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "widgets/ButtonDrawState.h"
#include "widgets/RadioButtonEx.h"
#include "widgets/ToggleButton.h"

#include <CEGUI/widgets/ToggleButton.h>

namespace CEGUI
{
namespace MoxieLook
{
//! What a selectable button shows in one state.
struct SelectablePicture
{
    const Image* image;
    const Image* overlay; //!< drawn over the image, or null
    ButtonDrawState state;
    Sizef scale{1, 1}; //!< of the image, across and upright
};

//! Shading shared by the selectable looks.
struct SelectableShading
{
    static const Colour PushedImageColour; //!< tints the image while held down
    static constexpr float DisabledImageAlpha = 0.45f;
    static const Colour EnabledTextLabelColour;
    static const Colour DisabledTextLabelColour;
};

void drawSelectable(Window& window, const SelectablePicture& picture, const Colour& textColour,
                    float padding);
//! The same with colours as the stock skins give them (their own alpha, times the window's).
void drawSelectable(Window& window, const SelectablePicture& picture, const ColourRect& textColours,
                    float padding);

class MXToggleButton : public ToggleButton, public SelectableShading
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ToggleButton";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char NormalImageName[] = "TaskbarButtonNormal";
    static constexpr char HighlightImageName[] = "TaskbarButtonHover";
    static constexpr char SelectMarkImageName[] = "TaskbarButtonMark";
    static constexpr char SelectMarkHighlightImageName[] = "TaskbarButtonMarkHover";
    static constexpr float LabelPadding = 4.0f;

    MXToggleButton(const String& type, const String& name);

protected:
    void drawNormal() override;
    void drawHover() override;
    void drawPushed() override;
    void drawDisabled() override;

private:
    const Image* d_normal;
    const Image* d_highlight;
    const Image* d_selectMark;
    const Image* d_selectMarkHighlight;
};

class MXRadioButton : public RadioButtonEx, public SelectableShading
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/RadioButton";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char NormalImageName[] = "LiftMiddleNormal";
    static constexpr char FocusImageName[] = "LiftMiddleFocus";
    static constexpr char SelectedImageName[] = "LiftMiddlePushed";
    static constexpr char SelectedFocusImageName[] = "LiftMiddlePushedFocus";
    static constexpr float LabelPadding = 4.0f;

    MXRadioButton(const String& type, const String& name);
    void initialiseComponents() override;

    //! The stock skins' "RadioButtonRelativeWidth" and "...Height": the state image's size
    //! as a multiple of its own (the label moves with its width); no number or below 0: 0.
    void setImageRelativeWidth(float scale);
    float getImageRelativeWidth() const { return d_imageScale.d_width; }
    void setImageRelativeHeight(float scale);
    float getImageRelativeHeight() const { return d_imageScale.d_height; }

protected:
    void populateGeometryBuffer() override;

private:
    const Image* d_normal;
    const Image* d_focus;
    const Image* d_selected;
    const Image* d_selectedFocus;
    Sizef d_imageScale{1, 1};
};

class MXCheckbox : public RedrawnWhenUncovered<CEGUI::ToggleButton>, public SelectableShading
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Checkbox";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char NormalImageName[] = "CheckboxNormal";
    static constexpr char HighlightImageName[] = "CheckboxHover";
    static constexpr char CheckMarkImageName[] = "CheckboxMark";
    static constexpr float LabelPadding = 4.0f;

    MXCheckbox(const String& type, const String& name);

    //! The label's colour per state, as the stock skins set them ("NormalTextColour", ...).
    void setNormalTextColour(const ColourRect& colours) { setLabelColour(d_normalText, colours); }
    const ColourRect& getNormalTextColour() const { return d_normalText; }
    void setHoverTextColour(const ColourRect& colours) { setLabelColour(d_hoverText, colours); }
    const ColourRect& getHoverTextColour() const { return d_hoverText; }
    void setPushedTextColour(const ColourRect& colours) { setLabelColour(d_pushedText, colours); }
    const ColourRect& getPushedTextColour() const { return d_pushedText; }
    void setDisabledTextColour(const ColourRect& colours)
    {
        setLabelColour(d_disabledText, colours);
    }
    const ColourRect& getDisabledTextColour() const { return d_disabledText; }

protected:
    void populateGeometryBuffer() override;
    void onSelectStateChange(WindowEventArgs& e) override;

private:
    void setLabelColour(ColourRect& slot, const ColourRect& colours);

    ColourRect d_normalText;
    ColourRect d_hoverText;
    ColourRect d_pushedText;
    ColourRect d_disabledText;
    const Image* d_normal;
    const Image* d_highlight;
    const Image* d_checkMark;
};

using MXToggleButtonFactory = LookFactory<MXToggleButton>;
using MXRadioButtonFactory = LookFactory<MXRadioButton>;
using MXCheckboxFactory = LookFactory<MXCheckbox>;

} // namespace MoxieLook
} // namespace CEGUI
