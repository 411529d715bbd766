// "MoxieLook/Editbox": the edit box look (EditboxImagery), its text kept in view around
// the caret, the selection brush under selected text, masked text drawn as the mask
// character, a blinking caret while focused, the placeholder in its own colour while empty
// and unfocused. CEGUI 0.8's edit box asks a renderer for the text index at a point: the
// look brings one (MXEditboxRenderer) that forwards to it.
#pragma once

#include "looks/CaretBlink.h"
#include "looks/EditboxImagery.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"
#include "widgets/EditboxEx.h"

namespace CEGUI
{
namespace MoxieLook
{
class MXEditbox : public EditboxEx, public BlinkingCaret<MXEditbox>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Editbox";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseTextBar";
    //! Seconds the caret stays shown, then hidden.
    static constexpr float CaretBlinkTime = CaretBlink::DefaultPeriod;

    MXEditbox(const String& type, const String& name);

    // What CEGUI's Editbox asks its renderer for, and the renderer's own calls.
    virtual std::size_t textIndexAt(const Vector2f& screenPoint) const;
    void populateGeometryBuffer() override;

    //! The text area, window-local: inside the frame and its padding.
    Rectf textArea() const;
    //! The text as drawn: the mask character repeated for masked boxes.
    String visualText() const;
    //! Where the text starts from the text area's left, as last drawn.
    float textOffset() const { return d_textOffset; }
    EditboxImagery& imagery() { return d_imagery; }
    const EditboxImagery& imagery() const { return d_imagery; }

    //! CEGUI's core renderer's "TextFormatting": where a text that fits stands
    //! ("LeftAligned", "RightAligned" or "CentreAligned"; others are refused, as there).
    void setTextFormatting(const String& name);
    const String& getTextFormatting() const { return d_alignment.name; }

protected:
    void onCaretMoved(WindowEventArgs& e) override;
    void onTextChanged(WindowEventArgs& e) override;
    void onActivated(ActivationEventArgs& e) override;

    EditboxImagery d_imagery;

private:
    float d_textOffset = 0.0f;
    NamedHorzFormat d_alignment{HorzTextFormat::Left, "LeftAligned"};
};

//! "MoxieLook/ComboEditbox": the combo box's edit part as a type of its own, the edit
//! box's look.
class MXComboEditbox : public MXEditbox
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/ComboEditbox";
    using MXEditbox::MXEditbox;
};

class MXEditboxRenderer : public LookRenderer<EditboxWindowRenderer, MXEditbox>
{
public:
    static constexpr char TypeName[] = "MoxieLook/EditboxRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    std::size_t getTextIndexFromPosition(const Vector2f& pt) const override
    {
        return look() ? look()->textIndexAt(pt) : 0;
    }
    void update(float elapsed) override
    {
        if (look())
            look()->updateCaretBlink(elapsed);
    }
};

using MXEditboxFactory = LookFactory<MXEditbox>;
using MXComboEditboxFactory = LookFactory<MXComboEditbox>;
using MXEditboxRendererFactory = LookRendererFactory<MXEditboxRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
