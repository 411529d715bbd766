// The concrete node of the NodeItem tree: an extended button per node with an icon per
// state and selection, an optional red counter of its child nodes and an opened image
// while selected. Each selection state has its own size; the node grows or shrinks to it
// in "ResizeStepNumber" equal steps, one per drawn frame.
#pragma once

#include "widgets/MultiImage.h"
#include "widgets/NodeItem.h"

#include <array>
#include <map>

namespace CEGUI
{
namespace MoxieLook
{
class ButtonEx;
class TextItem;

class SmartButtonNodeItem : public NodeItem
{
public:
    SmartButtonNodeItem(const String& type, const String& name);

    void initialiseComponents() override;

    ButtonEx* GetButton() const { return d_button; }
    TextItem* GetTextItem() const { return d_textItem; }

    void SetResizeStepNumber(float steps) { d_resizeStepNumber = steps; }
    float GetResizeStepNumber() const { return d_resizeStepNumber; }
    //! The target size of one state; (0, 0) keeps the node's size in that state.
    void SetAbsoluteSize(const Sizef& size, bool selected);
    const Sizef& GetAbsoluteSize(bool selected) const
    {
        return selected ? d_selectedSize : d_normalSize;
    }

    void SetNormalIcon(bool selected, const Image* icon, MultiImage::ImageAlignment alignment);
    void SetHoverIcon(bool selected, const Image* icon, MultiImage::ImageAlignment alignment);
    void SetDisabledIcon(bool selected, const Image* icon, MultiImage::ImageAlignment alignment);
    void SetPushedIcon(bool selected, const Image* icon, MultiImage::ImageAlignment alignment);
    void SetOpenedImage(const Image* image);
    const Image* GetOpenedImage() const { return d_openedImage; }
    void SetHoverSelectionEnabled(bool enabled) { d_hoverSelection = enabled; }
    bool IsHoverSelectionEnabled() const { return d_hoverSelection; }
    void SetDisplayNbChildrenEnable(bool enabled);
    bool IsDisplayNbChildrenEnabled() const { return d_displayChildCount; }
    void UseStandardImagery(bool use);
    bool IsUsingStandardImagery() const;
    void SetTextColor(const Colour& colour);
    Colour GetTextColor() const;

    //! The icon the button shows now, its alignment and scale.
    const Image* GetIconToUse(bool selected) const;
    MultiImage::ImageAlignment GetAlignment(const Image* image, bool selected) const;
    bool IsSelectedIconNeeded() const;
    float GetIconScale() const;

    void SetSelected(bool selected) override;
    void RemoveChildAtIdx(unsigned index) override;
    void RemoveChild(Window* window) override;

    bool isHit(const Vector2f& position, const bool allow_disabled = false) const override;

protected:
    virtual ButtonEx* CreateButton() = 0;
    virtual TextItem* CreateTextItem() = 0;
    //! The size of the state, or the current size when that state keeps it.
    virtual Sizef GetSizeToFit(bool selected) const;
    virtual Sizef GetAbsoluteButtonSize() const;

    //! One step of the resize animation after drawing.
    void drawSelf(const RenderingContext& ctx) override;
    //! While a resize is under way, asks for the next frame: CEGUI 0.8 draws only what
    //! was invalidated, and forgets an invalidation made while it draws.
    void updateSelf(float elapsed) override;
    void onSized(ElementEventArgs& e) override;
    void onEnabled(WindowEventArgs& e) override;
    void onDisabled(WindowEventArgs& e) override;
    void onTextChanged(WindowEventArgs& e) override;
    //! Nodes hang outside their parent: they are clipped where their parent is.
    Rectf getOuterRectClipper_impl() const override;
    Rectf getInnerRectClipper_impl() const override;

    void UpdateButton();
    bool d_needsUpdate = false;

private:
    enum IconSlot
    {
        NormalIcon,
        DisabledIcon,
        HoverIcon,
        PushedIcon
    };
    void setIcon(IconSlot slot, bool selected, const Image* icon,
                 MultiImage::ImageAlignment alignment);
    void stepResize();
    bool buttonClicked(const EventArgs& args);
    bool buttonEntered(const EventArgs& args);
    bool buttonStateChanged(const EventArgs& args);
    void addSmartButtonNodeItemProperties();

    bool d_hoverSelection = false;
    bool d_displayChildCount = false;
    bool d_resizing = false;
    float d_resizeStepNumber = 1.0f;
    float d_resizeStepsDone = 0.0f;
    float d_residualWidth = 0.0f;
    float d_residualHeight = 0.0f;
    Sizef d_selectedSize{0, 0};
    Sizef d_normalSize{0, 0};
    ButtonEx* d_button = nullptr;
    TextItem* d_textItem = nullptr;
    //! Unselected normal, disabled, hover, pushed; then the same when selected.
    std::array<const Image*, 8> d_icons{};
    const Image* d_openedImage = nullptr;
    std::map<const Image*, MultiImage::ImageAlignment> d_selectedAlignments;
    std::map<const Image*, MultiImage::ImageAlignment> d_normalAlignments;
};

namespace SmartButtonNodeItemProperties
{
//! What an icon property text names: "<image>selected:<bool> imageAlignment:<alignment>".
struct IconText
{
    const Image* image;
    bool selected;
    MultiImage::ImageAlignment alignment;
};
//! InvalidRequestException for a text without "selected:".
IconText parseIconText(const String& text);
//! "<size>selected:<bool>", the size in CEGUI's "w:W h:H" form.
std::pair<Sizef, bool> parseSizeText(const String& text);

#define MOXIE_SMART_PROPERTY(Class)                                                                \
    class Class : public Property                                                                  \
    {                                                                                              \
    public:                                                                                        \
        Class();                                                                                   \
        String get(const PropertyReceiver* receiver) const override;                               \
        void set(PropertyReceiver* receiver, const String& value) override;                        \
        Property* clone() const override { return new Class(*this); }                              \
    };
MOXIE_SMART_PROPERTY(ResizeStepNumberProperty)
MOXIE_SMART_PROPERTY(NormalIconProperty)
MOXIE_SMART_PROPERTY(HoverIconProperty)
MOXIE_SMART_PROPERTY(DisableIconProperty)
MOXIE_SMART_PROPERTY(PushedIconProperty)
MOXIE_SMART_PROPERTY(OpenedImageProperty)
MOXIE_SMART_PROPERTY(SelectionRelativeSizeProperty)
MOXIE_SMART_PROPERTY(HoverSelectionEnabledProperty)
MOXIE_SMART_PROPERTY(DisplayNbChildrenEnableProperty)
MOXIE_SMART_PROPERTY(UseStandardImageryProperty)
MOXIE_SMART_PROPERTY(TextColorProperty)
#undef MOXIE_SMART_PROPERTY
} // namespace SmartButtonNodeItemProperties

} // namespace MoxieLook
} // namespace CEGUI
