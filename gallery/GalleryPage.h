// The gallery's sheet: a card per registered "MoxieLook/..." type, two columns, scrolled
// with the mouse wheel.
#pragma once

#include <CEGUI/Rect.h>
#include <CEGUI/String.h>
#include <functional>
#include <vector>

namespace CEGUI
{
class Window;
}

namespace gallery
{
class GalleryPage
{
public:
    //! Builds every card on a new sheet of the default GUI context.
    explicit GalleryPage(const CEGUI::Sizef& display);

    struct CardInfo
    {
        CEGUI::String type;
        CEGUI::Window* card;
        CEGUI::Window* hoverTarget;
        std::function<void()> whenShown;
        std::function<void()> animate;
        std::vector<int> animationFrames;
    };
    const std::vector<CardInfo>& cards() const { return d_cards; }

    //! Scrolls by `pixels` (positive: down), within the page.
    void scrollBy(float pixels);
    //! Scrolls so that `card` is at the top, as far as the page allows; returns its
    //! rectangle on screen.
    CEGUI::Rectf bringIntoView(const CardInfo& card);

private:
    void setScroll(float offset);

    CEGUI::Window* d_pane = nullptr;
    std::vector<CardInfo> d_cards;
    float d_contentHeight = 0;
    float d_viewHeight = 0;
    float d_scroll = 0;
};

} // namespace gallery
