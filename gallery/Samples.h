// What the gallery shows of each window type: one card per type, built by a small
// function. A type joins the gallery with one entry in the group file of its kind.
#pragma once

#include <CEGUI/String.h>
#include <functional>
#include <initializer_list>
#include <vector>

namespace CEGUI
{
class Window;
}

namespace gallery
{
//! Places sample windows inside one card and tells the page which one to hover.
class Card
{
public:
    explicit Card(CEGUI::Window& content) : d_content(content) {}

    //! A window of `type` at (x, y) in the card, with a caption under it.
    CEGUI::Window& add(const CEGUI::String& type, const CEGUI::String& caption, float x, float y,
                       float width, float height);

    enum class State
    {
        Normal,
        Hover,
        Pushed,
        Disabled,
        Selected
    };
    //! One window per state, side by side, each captioned with its state.
    void states(const CEGUI::String& type, const CEGUI::String& text, float width, float height,
                std::initializer_list<State> states);

    //! The sample windows added so far, in order (captions excluded).
    std::size_t count() const { return d_windows.size(); }
    CEGUI::Window& at(std::size_t index) const { return *d_windows.at(index); }

    //! The window the pointer rests on when the card is photographed.
    void hoverOn(CEGUI::Window& window) { d_hoverTarget = &window; }
    CEGUI::Window* hoverTarget() const { return d_hoverTarget; }
    //! What to do when the card is about to be seen (open a list that would close while
    //! the other cards are built).
    void whenShown(std::function<void()> action) { d_whenShown = std::move(action); }
    const std::function<void()>& shownAction() const { return d_whenShown; }
    //! An animation to photograph frame by frame after the card's picture (started by
    //! the action; pictures are taken at the listed frames).
    void animation(std::function<void()> start, std::vector<int> frames)
    {
        d_animation = std::move(start);
        d_animationFrames = std::move(frames);
    }
    const std::function<void()>& animationStart() const { return d_animation; }
    const std::vector<int>& animationFrames() const { return d_animationFrames; }

private:
    CEGUI::Window& d_content;
    CEGUI::Window* d_hoverTarget = nullptr;
    std::function<void()> d_whenShown;
    std::function<void()> d_animation;
    std::vector<int> d_animationFrames;
    std::vector<CEGUI::Window*> d_windows;
};

struct Sample
{
    const char* type;
    float height; //!< of the card's content, in pixels
    std::function<void(Card&)> build;
};

//! A window of `type` with `text`, at (x, y) inside `parent`, w x h pixels.
CEGUI::Window& childOf(CEGUI::Window& parent, const CEGUI::String& type, const CEGUI::String& text,
                       float x, float y, float w, float h);

//! Every card, gathered from the groups below.
const std::vector<Sample>& samples();

// The groups of cards, one source file each.
std::vector<Sample> staticAndScrollingSamples();
std::vector<Sample> selectableSamples();
std::vector<Sample> treeSamples();
std::vector<Sample> inputSamples();
std::vector<Sample> chartSamples();
std::vector<Sample> menuSamples();
std::vector<Sample> tabSamples();
std::vector<Sample> windowSamples();
std::vector<Sample> columnSamples();
std::vector<Sample> stockSkinSamples();

} // namespace gallery
