// "MoxieLook/TabControl": CEGUI's tab control with a button row ("DefaultWindow", so it
// draws nothing itself) over a "MoxieLook/TabPane", and the filler
// ("TabControlButtonPaneFiller") along the bottom of the row right of the last tab.
#pragma once

#include "draw/RedrawnWhenUncovered.h"
#include "looks/LookFactory.h"
#include "looks/LookRendererFactory.h"

#include <CEGUI/widgets/TabControl.h>
#include <optional>

namespace CEGUI
{
namespace MoxieLook
{
class MXTabControl : public RedrawnWhenUncovered<TabControl>
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/TabControl";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char MouseCursorImageName[] = "MouseArrow";
    static constexpr char FillerImageName[] = "TabControlButtonPaneFiller";
    //! Types of the windows the control makes; a host may point them at its own types.
    static const char* TabButtonType;
    static const char* TabContentPaneType;
    //! The button row only holds the buttons; the control draws the filler.
    static constexpr char ButtonPaneType[] = "DefaultWindow";
    //! Room either side of a tab's title, in pixels (the "TabTextPadding" it starts with).
    static constexpr float TabTextPadding = 8.0f;

    MXTabControl(const String& type, const String& name);

    void initialiseComponents() override;
    void performChildWindowLayout(bool nonclientSizedHint = false,
                                  bool clientSizedHint = false) override;

    //! CEGUI's core renderer's "TabButtonType": this control's own tab type, once set; until
    //! then each tab takes the class-wide `TabButtonType` as it stands when the tab is made.
    void setTabButtonType(const String& type) { d_tabButtonType = type; }
    String getTabButtonType() const { return d_tabButtonType.value_or(TabButtonType); }

    //! A new window of the tab button type called `name`.
    virtual TabButton* createTabButton(const String& name) const;
    //! A new window of `TabContentPaneType`. CEGUI 0.8 names children per parent, so the
    //! pane takes `name` as it is (the control looks it up by `ContentPaneName`).
    virtual Window* createTabContentPane(const String& name) const;

    //! Where the filler lies, relative to the control (z stays 0).
    const Vector3f& getFillerPosition() const { return d_fillerPosition; }
    const Sizef& getFillerSize() const { return d_fillerSize; }
    //! Height of the button row: the "TabHeight" property, or before it is known the
    //! height CEGUI gives it at the first tab (8 pixels more than the font's).
    float buttonRowHeight() const;

    void populateGeometryBuffer() override;

protected:
    //! CEGUI's tab control draws nothing of its own; this one draws the filler.
    void drawSelf(const RenderingContext& context) override { Window::drawSelf(context); }

private:
    void placePanes();

    std::optional<String> d_tabButtonType;
    const Image* d_filler;
    Vector3f d_fillerPosition{0, 0, 0};
    Sizef d_fillerSize{0, 0};
};

//! CEGUI's tab control asks its renderer to make the buttons; this one asks the look.
class MXTabControlRenderer : public LookRenderer<TabControlWindowRenderer, MXTabControl>
{
public:
    static constexpr char TypeName[] = "MoxieLook/TabControlRenderer";
    using LookRenderer::LookRenderer;

    void render() override
    {
        if (look())
            look()->populateGeometryBuffer();
    }
    TabButton* createTabButton(const String& name) const override;
};

using MXTabControlFactory = LookFactory<MXTabControl>;
using MXTabControlRendererFactory = LookRendererFactory<MXTabControlRenderer>;

} // namespace MoxieLook
} // namespace CEGUI
