// "MoxieLook/MultiLineEditbox": the edit box imagery around CEGUI's multi-line edit box,
// its lines drawn with the selection brush under selected text, the caret blinking while
// focused, and the module's scroll bars ("__auto_vscrollbar__", "__auto_hscrollbar__")
// inside the frame. Only the lines in view are drawn. CEGUI 0.8's multi-line edit box asks
// a renderer for its text area: the look brings one (MXMultiLineEditBoxRenderer).
#pragma once

#include "draw/ClipWatch.h"
#include "draw/RedrawnWhenUncovered.h"
#include "looks/CaretBlink.h"
#include "looks/EditboxImagery.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"

#include <CEGUI/widgets/MultiLineEditbox.h>

namespace CEGUI
{
namespace MoxieLook
{
class MXMultiLineEditBox : public RedrawnWhenUncovered<MultiLineEditbox>,
                           public BlinkingCaret<MXMultiLineEditBox>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/MultiLineEditbox";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseTextBar";
    static constexpr char VertScrollbarType[] = "MoxieLook/VerticalScrollbar";
    static constexpr char HorzScrollbarType[] = "MoxieLook/HorizontalScrollbar";
    static constexpr float ScrollbarThickness = 16.0f;
    static constexpr float CaretBlinkTime = CaretBlink::DefaultPeriod;

    MXMultiLineEditBox(const String& type, const String& name);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    // What CEGUI's MultiLineEditbox asks its renderer for, and the renderer's own calls.
    virtual Rectf textRenderArea() const;
    void populateGeometryBuffer() override;
    void notifyScreenAreaChanged(bool recursive = true) override;

    EditboxImagery& imagery() { return d_imagery; }
    const EditboxImagery& imagery() const { return d_imagery; }

protected:
    void onTextChanged(WindowEventArgs& e) override;
    void onActivated(ActivationEventArgs& e) override;
    void onDeactivated(ActivationEventArgs& e) override;

    EditboxImagery d_imagery;

private:
    void layOutBars();
    void drawLines(GeometryBuffer& buffer, const Rectf& area);

    ClipWatch d_clipWatch;
};

class MXMultiLineEditBoxRenderer
    : public LookRenderer<MultiLineEditboxWindowRenderer, MXMultiLineEditBox>
{
public:
    static constexpr char TypeName[] = "MoxieLook/MultiLineEditboxRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    Rectf getTextRenderArea() const override
    {
        return look() ? look()->textRenderArea() : Rectf(0, 0, 0, 0);
    }
    void update(float elapsed) override
    {
        if (look())
            look()->updateCaretBlink(elapsed);
    }
};

// The factory keeps the capital B of the look's name.
using MXMultiLineEditBoxFactory = LookFactory<MXMultiLineEditBox>;
using MXMultiLineEditBoxRendererFactory = LookRendererFactory<MXMultiLineEditBoxRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
