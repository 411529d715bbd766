#include "widgets/SmartButtonNodeItem.h"

#include "draw/TextDrawing.h"
#include "widgets/ButtonEx.h"
#include "widgets/TextItem.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/Font.h>
#include <CEGUI/Image.h>
#include <CEGUI/PropertyHelper.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
SmartButtonNodeItemProperties::ResizeStepNumberProperty d_resizestepnumberproperty;
SmartButtonNodeItemProperties::NormalIconProperty d_normaliconproperty;
SmartButtonNodeItemProperties::HoverIconProperty d_hovericonproperty;
SmartButtonNodeItemProperties::DisableIconProperty d_disableiconproperty;
SmartButtonNodeItemProperties::PushedIconProperty d_pushediconproperty;
SmartButtonNodeItemProperties::OpenedImageProperty d_openedimageproperty;
SmartButtonNodeItemProperties::SelectionRelativeSizeProperty d_selectionrelativesizeproperty;
SmartButtonNodeItemProperties::HoverSelectionEnabledProperty d_hoverselectionenabledproperty;
SmartButtonNodeItemProperties::DisplayNbChildrenEnableProperty d_displaynbchildrenenableproperty;
SmartButtonNodeItemProperties::UseStandardImageryProperty d_usestandardimageryproperty;
SmartButtonNodeItemProperties::TextColorProperty d_textcolorproperty;

USize absolute(const Sizef& size)
{
    return USize(cegui_absdim(size.d_width), cegui_absdim(size.d_height));
}

bool isZero(const Sizef& size)
{
    return size.d_width == 0 && size.d_height == 0;
}
} // namespace

SmartButtonNodeItem::SmartButtonNodeItem(const String& type, const String& name)
    : NodeItem(type, name)
{
    addSmartButtonNodeItemProperties();
    setClippedByParent(false);
}

void SmartButtonNodeItem::addSmartButtonNodeItemProperties()
{
    for (Property* property : std::initializer_list<Property*>{
             &d_resizestepnumberproperty, &d_normaliconproperty, &d_hovericonproperty,
             &d_disableiconproperty, &d_pushediconproperty, &d_openedimageproperty,
             &d_selectionrelativesizeproperty, &d_hoverselectionenabledproperty,
             &d_displaynbchildrenenableproperty, &d_usestandardimageryproperty,
             &d_textcolorproperty})
        addProperty(property);
}

void SmartButtonNodeItem::initialiseComponents()
{
    NodeItem::initialiseComponents();
    d_button = CreateButton();
    d_button->setInheritsTooltipText(true);
    d_button->setSize(absolute(GetAbsoluteButtonSize()));
    d_button->subscribeEvent(EventMouseClick,
                             Event::Subscriber(&SmartButtonNodeItem::buttonClicked, this));
    d_button->subscribeEvent(EventMouseEntersArea,
                             Event::Subscriber(&SmartButtonNodeItem::buttonEntered, this));
    for (const String* event :
         {&EventMouseButtonDown, &EventMouseButtonUp, &EventMouseEntersArea, &EventMouseLeavesArea})
        d_button->subscribeEvent(*event,
                                 Event::Subscriber(&SmartButtonNodeItem::buttonStateChanged, this));

    d_textItem = CreateTextItem();
    const Font* font = d_textItem->getFont();
    d_textItem->setSize(USize(cegui_absdim(d_button->getPixelSize().d_width),
                              cegui_absdim(font ? font->getLineSpacing() : 0.0f)));
    d_textItem->setVerticalAlignment(VA_BOTTOM);
    d_textItem->setTextFormatting(HorzTextFormat::Centred);
    d_button->addChild(d_textItem);
    addChild(d_button);
    UpdateButton();
}

bool SmartButtonNodeItem::buttonClicked(const EventArgs& args)
{
    if (static_cast<const MouseEventArgs&>(args).button == LeftButton)
        SetSelected(!IsSelected());
    return true;
}

bool SmartButtonNodeItem::buttonEntered(const EventArgs&)
{
    if (d_hoverSelection)
        SetSelected(true);
    return true;
}

bool SmartButtonNodeItem::buttonStateChanged(const EventArgs&)
{
    d_needsUpdate = true;
    invalidate();
    return true;
}

void SmartButtonNodeItem::SetAbsoluteSize(const Sizef& size, bool selected)
{
    d_resizeStepsDone = 0;
    (selected ? d_selectedSize : d_normalSize) = size;
    if (IsSelected() == selected)
        setSize(absolute(size));
}

void SmartButtonNodeItem::setIcon(IconSlot slot, bool selected, const Image* icon,
                                  MultiImage::ImageAlignment alignment)
{
    d_icons[slot + (selected ? 4 : 0)] = icon;
    (selected ? d_selectedAlignments : d_normalAlignments)[icon] = alignment;
    d_needsUpdate = true;
    invalidate();
}

void SmartButtonNodeItem::SetNormalIcon(bool selected, const Image* icon,
                                        MultiImage::ImageAlignment alignment)
{
    setIcon(NormalIcon, selected, icon, alignment);
}

void SmartButtonNodeItem::SetHoverIcon(bool selected, const Image* icon,
                                       MultiImage::ImageAlignment alignment)
{
    setIcon(HoverIcon, selected, icon, alignment);
}

void SmartButtonNodeItem::SetDisabledIcon(bool selected, const Image* icon,
                                          MultiImage::ImageAlignment alignment)
{
    setIcon(DisabledIcon, selected, icon, alignment);
}

void SmartButtonNodeItem::SetPushedIcon(bool selected, const Image* icon,
                                        MultiImage::ImageAlignment alignment)
{
    setIcon(PushedIcon, selected, icon, alignment);
}

void SmartButtonNodeItem::SetOpenedImage(const Image* image)
{
    d_openedImage = image;
    invalidate();
}

void SmartButtonNodeItem::SetDisplayNbChildrenEnable(bool enabled)
{
    d_displayChildCount = enabled;
    d_needsUpdate = true;
    invalidate();
    d_button->invalidate();
}

void SmartButtonNodeItem::UseStandardImagery(bool use)
{
    d_button->setStandardImageryEnabled(use);
    d_button->invalidate();
}

bool SmartButtonNodeItem::IsUsingStandardImagery() const
{
    return d_button->isStandardImageryEnabled();
}

void SmartButtonNodeItem::SetTextColor(const Colour& colour)
{
    d_button->setNormalTextColour(colour);
    d_button->setHoverTextColour(colour);
    d_button->setPushedTextColour(colour);
    d_button->setDisabledTextColour(colour);
    d_button->invalidate();
}

Colour SmartButtonNodeItem::GetTextColor() const
{
    return d_button->getNormalTextColour();
}

const Image* SmartButtonNodeItem::GetIconToUse(bool selected) const
{
    const std::size_t base = selected ? 4 : 0;
    IconSlot slot = NormalIcon;
    if (isEffectiveDisabled() || d_button->isEffectiveDisabled())
        slot = DisabledIcon;
    else if (d_button->isPushed())
        slot = PushedIcon;
    else if (d_button->isHovering())
        slot = HoverIcon;
    const Image* icon = d_icons[base + slot];
    return icon ? icon : d_icons[base + NormalIcon];
}

MultiImage::ImageAlignment SmartButtonNodeItem::GetAlignment(const Image* image,
                                                             bool selected) const
{
    const auto& alignments = selected ? d_selectedAlignments : d_normalAlignments;
    const auto found = alignments.find(image);
    return found != alignments.end() ? found->second : MultiImage::None;
}

bool SmartButtonNodeItem::IsSelectedIconNeeded() const
{
    const float mean = (GetSizeToFit(true).d_height + GetSizeToFit(false).d_height) * 0.5f;
    return getPixelSize().d_height > mean;
}

float SmartButtonNodeItem::GetIconScale() const
{
    const Sizef fit = SmartButtonNodeItem::GetSizeToFit(IsSelectedIconNeeded());
    const Sizef button = d_button->getPixelSize();
    if (!(fit.d_width > 0) || !(fit.d_height > 0))
        return 1.0f;
    return 0.5f * (button.d_width / fit.d_width + button.d_height / fit.d_height);
}

void SmartButtonNodeItem::UpdateButton()
{
    d_button->ClearImages();
    const bool selectedIcon = IsSelectedIconNeeded();
    if (const Image* icon = GetIconToUse(selectedIcon))
        d_button->AddImage(icon, 0, 0, GetIconScale(), GetAlignment(icon, selectedIcon),
                           ColourRect(Colour(0x00000000)));
    d_textItem->setWidth(cegui_absdim(d_button->getPixelSize().d_width));
    d_textItem->setVisible(d_displayChildCount);
}

void SmartButtonNodeItem::SetSelected(bool selected)
{
    NodeItem::SetSelected(selected);
    d_needsUpdate = true;
    invalidate();
    if (!isEffectiveVisible())
        setSize(absolute(GetSizeToFit(selected))); // no animation while hidden
}

void SmartButtonNodeItem::RemoveChildAtIdx(unsigned index)
{
    NodeItem::RemoveChildAtIdx(index);
    if (GetNbChildren() == 0)
        SetSelected(false);
}

void SmartButtonNodeItem::RemoveChild(Window* window)
{
    NodeItem::RemoveChild(window);
    if (GetNbChildren() == 0)
        SetSelected(false);
}

bool SmartButtonNodeItem::isHit(const Vector2f& position, const bool allow_disabled) const
{
    return d_button && d_button->isHit(position, allow_disabled);
}

Sizef SmartButtonNodeItem::GetSizeToFit(bool selected) const
{
    const Sizef& stored = selected ? d_selectedSize : d_normalSize;
    return isZero(stored) ? getPixelSize() : stored;
}

Sizef SmartButtonNodeItem::GetAbsoluteButtonSize() const
{
    return getPixelSize();
}

void SmartButtonNodeItem::drawSelf(const RenderingContext& ctx)
{
    if (d_needsUpdate && d_button)
    {
        d_needsUpdate = false;
        UpdateButton();
    }
    NodeItem::drawSelf(ctx);
    stepResize();
}

void SmartButtonNodeItem::stepResize()
{
    if (!d_button)
        return;
    const Sizef target = GetSizeToFit(IsSelected());
    const Sizef current = getPixelSize();
    if (d_button->getText() != getText())
        d_button->setText(getText());
    d_resizing = false;
    // CEGUI keeps sizes to whole pixels: within half a pixel of the target is there.
    if (std::abs(target.d_width - current.d_width) < 0.5f &&
        std::abs(target.d_height - current.d_height) < 0.5f)
    {
        d_resizeStepsDone = 0;
        return;
    }
    Sizef step(target.d_width - current.d_width, target.d_height - current.d_height);
    if (d_resizeStepNumber > d_resizeStepsDone)
    {
        // Equal steps; the last one takes whatever is left.
        const float share = 1.0f / std::max(1.0f, d_resizeStepNumber - d_resizeStepsDone);
        step = Sizef(step.d_width * share, step.d_height * share);
        d_resizeStepsDone += 1;
    }
    const Sizef requested(current.d_width + step.d_width + d_residualWidth,
                          current.d_height + step.d_height + d_residualHeight);
    if (!std::isfinite(requested.d_width) || !std::isfinite(requested.d_height))
        return;
    setSize(absolute(requested));
    const Sizef applied = getPixelSize();
    // CEGUI rounds sizes to whole pixels: a request within half a pixel may come back
    // unchanged and its fraction carries on. A whole pixel refused is the host's limit:
    // stop rather than ask every frame.
    const bool rounded = std::abs(requested.d_width - current.d_width) < 0.5f &&
                         std::abs(requested.d_height - current.d_height) < 0.5f;
    if (applied == current && !rounded)
    {
        d_residualWidth = d_residualHeight = 0;
        d_resizeStepsDone = 0;
        return;
    }
    d_residualWidth = requested.d_width - applied.d_width;
    d_residualHeight = requested.d_height - applied.d_height;
    d_needsUpdate = true;
    d_resizing = true;
}

void SmartButtonNodeItem::updateSelf(float elapsed)
{
    NodeItem::updateSelf(elapsed);
    if (d_resizing)
        invalidate();
}

void SmartButtonNodeItem::onSized(ElementEventArgs& e)
{
    NodeItem::onSized(e);
    if (d_button)
        d_button->setSize(absolute(GetAbsoluteButtonSize()));
    d_needsUpdate = true;
}

void SmartButtonNodeItem::onEnabled(WindowEventArgs& e)
{
    if (d_button)
        UpdateButton();
    NodeItem::onEnabled(e);
}

void SmartButtonNodeItem::onDisabled(WindowEventArgs& e)
{
    if (d_button)
        UpdateButton();
    NodeItem::onDisabled(e);
}

void SmartButtonNodeItem::onTextChanged(WindowEventArgs& e)
{
    NodeItem::onTextChanged(e);
    if (d_button)
        d_button->setText(getText());
}

Rectf SmartButtonNodeItem::getOuterRectClipper_impl() const
{
    return getParent() ? getParent()->getOuterRectClipper() : NodeItem::getOuterRectClipper_impl();
}

Rectf SmartButtonNodeItem::getInnerRectClipper_impl() const
{
    return getParent() ? getParent()->getInnerRectClipper() : NodeItem::getInnerRectClipper_impl();
}

// --- properties ---------------------------------------------------------------------------

namespace SmartButtonNodeItemProperties
{
namespace
{
SmartButtonNodeItem& nodeOf(PropertyReceiver* receiver)
{
    return *static_cast<SmartButtonNodeItem*>(receiver);
}
const SmartButtonNodeItem& nodeOf(const PropertyReceiver* receiver)
{
    return *static_cast<const SmartButtonNodeItem*>(receiver);
}
const char* const Origin = "MoxieLook/SmartButtonNodeItem";

// A refused text names the property it was given to, for the layout author's sake.
template <typename Parse>
auto parsedFor(const String& property, const String& value, Parse parse)
{
    try
    {
        return parse(value);
    }
    catch (const InvalidRequestException& refusal)
    {
        throw InvalidRequestException("\"" + property + "\": " + refusal.getMessage());
    }
}
} // namespace

IconText parseIconText(const String& text)
{
    const String::size_type selected = text.find("selected:");
    if (selected == String::npos)
        throw InvalidRequestException("The icon text '" + text +
                                      "' lacks \"selected:\": give "
                                      "\"<image>selected:<bool> imageAlignment:<alignment>\".");
    IconText icon;
    icon.image = PropertyHelper<Image*>::fromString(text.substr(0, selected));
    const String::size_type boolStart = selected + 9;
    const String::size_type alignment = text.find("imageAlignment:", boolStart);
    if (alignment == String::npos)
    {
        icon.selected = PropertyHelper<bool>::fromString(text.substr(boolStart));
        icon.alignment = MultiImage::None;
    }
    else
    {
        // The boolean ends one character (the blank) before the alignment's label.
        const String::size_type boolEnd = alignment > boolStart ? alignment - 1 : boolStart;
        icon.selected =
            PropertyHelper<bool>::fromString(text.substr(boolStart, boolEnd - boolStart));
        icon.alignment = MultiImage::alignmentFromName(text.substr(alignment + 15));
    }
    return icon;
}

std::pair<Sizef, bool> parseSizeText(const String& text)
{
    const String::size_type selected = text.find("selected:");
    if (selected == String::npos)
        throw InvalidRequestException("The size text '" + text +
                                      "' lacks \"selected:\": give \"w:W h:H selected:<bool>\".");
    const Sizef size = PropertyHelper<Sizef>::fromString(text.substr(0, selected));
    if (!std::isfinite(size.d_width) || !std::isfinite(size.d_height))
        throw InvalidRequestException("The size text '" + text + "' holds no finite size.");
    return {size, PropertyHelper<bool>::fromString(text.substr(selected + 9))};
}

ResizeStepNumberProperty::ResizeStepNumberProperty()
    : Property("ResizeStepNumber", "Sets the number of steps to resize the widget", "1", true,
               Origin)
{
}
String ResizeStepNumberProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<float>::toString(nodeOf(receiver).GetResizeStepNumber());
}
void ResizeStepNumberProperty::set(PropertyReceiver* receiver, const String& value)
{
    nodeOf(receiver).SetResizeStepNumber(PropertyHelper<float>::fromString(value));
}

#define MOXIE_ICON_PROPERTY(Class, Name, Help, Setter)                                             \
    Class::Class() : Property(Name, Help, "", true, Origin) {}                                     \
    String Class::get(const PropertyReceiver*) const                                               \
    {                                                                                              \
        return "";                                                                                 \
    }                                                                                              \
    void Class::set(PropertyReceiver* receiver, const String& value)                               \
    {                                                                                              \
        const IconText icon = parsedFor(Name, value, parseIconText);                               \
        nodeOf(receiver).Setter(icon.selected, icon.image, icon.alignment);                        \
    }
MOXIE_ICON_PROPERTY(NormalIconProperty, "NormalIcon", "Sets the normal icon", SetNormalIcon)
MOXIE_ICON_PROPERTY(HoverIconProperty, "HoverIcon", "Sets the hover icon", SetHoverIcon)
MOXIE_ICON_PROPERTY(DisableIconProperty, "DisabledIcon", "Sets the disable icon", SetDisabledIcon)
MOXIE_ICON_PROPERTY(PushedIconProperty, "PushedIcon", "Sets the pushed icon", SetPushedIcon)
#undef MOXIE_ICON_PROPERTY

OpenedImageProperty::OpenedImageProperty()
    : Property("OpenedImage", "Sets the opened image", "", true, Origin)
{
}
String OpenedImageProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<Image*>::toString(nodeOf(receiver).GetOpenedImage());
}
void OpenedImageProperty::set(PropertyReceiver* receiver, const String& value)
{
    nodeOf(receiver).SetOpenedImage(PropertyHelper<Image*>::fromString(value));
}

SelectionRelativeSizeProperty::SelectionRelativeSizeProperty()
    : Property("SmartAbsoluteSize", "Set the size to fit for the button, depends on selected state",
               "", true, Origin)
{
}
String SelectionRelativeSizeProperty::get(const PropertyReceiver*) const
{
    return "";
}
void SelectionRelativeSizeProperty::set(PropertyReceiver* receiver, const String& value)
{
    const auto [size, selected] = parsedFor(getName(), value, parseSizeText);
    nodeOf(receiver).SetAbsoluteSize(size, selected);
}

HoverSelectionEnabledProperty::HoverSelectionEnabledProperty()
    : Property("HoverSelectionEnabled", "Enable/disable selection by hovering", "False", true,
               Origin)
{
}
String HoverSelectionEnabledProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<bool>::toString(nodeOf(receiver).IsHoverSelectionEnabled());
}
void HoverSelectionEnabledProperty::set(PropertyReceiver* receiver, const String& value)
{
    nodeOf(receiver).SetHoverSelectionEnabled(PropertyHelper<bool>::fromString(value));
}

DisplayNbChildrenEnableProperty::DisplayNbChildrenEnableProperty()
    : Property("DisplayNbChildrenEnable", "Enable/disable the display of the number of children",
               "False", true, Origin)
{
}
String DisplayNbChildrenEnableProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<bool>::toString(nodeOf(receiver).IsDisplayNbChildrenEnabled());
}
void DisplayNbChildrenEnableProperty::set(PropertyReceiver* receiver, const String& value)
{
    nodeOf(receiver).SetDisplayNbChildrenEnable(PropertyHelper<bool>::fromString(value));
}

UseStandardImageryProperty::UseStandardImageryProperty()
    : Property("UseStandardImagery", "Enable/disable the standard display (with borders, etc.)",
               "True", true, Origin)
{
}
String UseStandardImageryProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<bool>::toString(nodeOf(receiver).IsUsingStandardImagery());
}
void UseStandardImageryProperty::set(PropertyReceiver* receiver, const String& value)
{
    nodeOf(receiver).UseStandardImagery(PropertyHelper<bool>::fromString(value));
}

TextColorProperty::TextColorProperty()
    : Property("TextColor", "Defines the text color (if a text has been defined).", "0xFFFFFFFF",
               true, Origin)
{
}
String TextColorProperty::get(const PropertyReceiver* receiver) const
{
    return PropertyHelper<Colour>::toString(nodeOf(receiver).GetTextColor());
}
void TextColorProperty::set(PropertyReceiver* receiver, const String& value)
{
    nodeOf(receiver).SetTextColor(PropertyHelper<Colour>::fromString(value));
}
} // namespace SmartButtonNodeItemProperties

} // namespace MoxieLook
} // namespace CEGUI
