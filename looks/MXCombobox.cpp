#include "looks/MXCombobox.h"

#include "draw/Imagery.h"
#include "looks/AutoParts.h"
#include "looks/PartLinkProperty.h"
#include "widgets/PushButtonEx.h"

#include <CEGUI/Font.h>
#include <CEGUI/widgets/ComboDropList.h>
#include <CEGUI/widgets/Editbox.h>
#include <CEGUI/widgets/ListboxItem.h>
#include <algorithm>
#include <cmath>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// The list's acceptance is protected: reached through a pointer to it, on the list itself.
struct DropListAccess : ComboDropList
{
    using Member = void (ComboDropList::*)(WindowEventArgs&);
    static constexpr Member accept = &DropListAccess::onListSelectionAccepted;
};
} // namespace

MXCombobox::MXCombobox(const String& type, const String& name)
    : RedrawnWhenUncovered<Combobox>(type, name)
{
    setMouseCursor(&lookImage(MouseCursorImageName));
    // The stock skins' names for the edit area's colours and the button's pictures.
    static const char* const colourHelp = MOXIE_COLOURS_VALUE_HELP;
    static const char* const imageHelp = " Value is an image name such as \"MoxieLook/Name\".";
    static PartLinkProperty links[] = {
        {"NormalEditTextColour",
         String("Property to get/set the edit area's text colours.") + colourHelp, EditboxName,
         "NormalTextColour", "ColourRect", WidgetTypeName},
        {"SelectedEditTextColour",
         String("Property to get/set the edit area's selected text colours.") + colourHelp,
         EditboxName, "SelectedTextColour", "ColourRect", WidgetTypeName},
        {"ActiveEditSelectionColour",
         String("Property to get/set the edit area's selection colours while active.") + colourHelp,
         EditboxName, "ActiveSelectionColour", "ColourRect", WidgetTypeName},
        {"InactiveEditSelectionColour",
         String("Property to get/set the edit area's selection colours while inactive.") +
             colourHelp,
         EditboxName, "InactiveSelectionColour", "ColourRect", WidgetTypeName},
        {"DropDownButtonNormalImage",
         String("Property to get/set the button's picture at rest.") + imageHelp, ButtonName,
         "NormalImage", "Image", WidgetTypeName, String(ImagesetName) + "/" + ButtonNormalImageName,
         "DisabledImage"}, // the look shows the normal picture while disabled too
        {"DropDownButtonHoverImage",
         String("Property to get/set the button's picture under the pointer.") + imageHelp,
         ButtonName, "HoverImage", "Image", WidgetTypeName,
         String(ImagesetName) + "/" + ButtonHoverImageName},
        {"DropDownButtonPushedImage",
         String("Property to get/set the button's picture while pressed.") + imageHelp, ButtonName,
         "PushedImage", "Image", WidgetTypeName,
         String(ImagesetName) + "/" + ButtonPushedImageName},
    };
    for (PartLinkProperty& link : links)
        addProperty(&link);
}

void MXCombobox::initialiseComponents()
{
    if (!isChild(EditboxName))
        addChild(createAutoPart<Editbox>(EditboxType, EditboxName, "a combo box's edit area"));
    if (!isChild(DropListName))
        addChild(createAutoPart<ComboDropList>(DropListType, DropListName, "a combo box's list"));
    if (!isChild(ButtonName))
    {
        PushButton* button =
            createAutoPart<PushButton>(ButtonType, ButtonName, "a combo box's button");
        if (auto* pictured = dynamic_cast<PushButtonEx*>(button))
        {
            FormattedImage picture;
            picture.setHorzFormatting(FormattedImage::HorzStretched);
            picture.setVertFormatting(FormattedImage::VertStretched);
            pictured->setStandardImageryEnabled(false);
            pictured->setCustomImageryAutoSized(true);
            picture.setImage(&lookImage(ButtonNormalImageName));
            pictured->setNormalImage(&picture);
            pictured->setDisabledImage(&picture);
            picture.setImage(&lookImage(ButtonHoverImageName));
            pictured->setHoverImage(&picture);
            picture.setImage(&lookImage(ButtonPushedImageName));
            pictured->setPushedImage(&picture);
        }
        addChild(button);
    }
    RedrawnWhenUncovered<Combobox>::initialiseComponents();
    getEditbox()->subscribeEvent(EventKeyDown, Event::Subscriber(&MXCombobox::editKeyDown, this));
    getDropList()->subscribeEvent(EventKeyDown, Event::Subscriber(&MXCombobox::listKeyDown, this));
}

void MXCombobox::stepSelection(int step)
{
    ComboDropList* list = getDropList();
    const std::size_t count = list->getItemCount();
    if (count == 0)
        return;
    const ListboxItem* selected = list->getFirstSelectedItem();
    std::size_t index = step > 0 ? 0 : count - 1;
    if (selected)
    {
        const std::size_t at = list->getItemIndex(selected);
        index = step > 0 ? std::min(count - 1, at + 1) : (at == 0 ? 0 : at - 1);
    }
    list->clearAllSelections();
    list->setItemSelectState(index, true);
    list->ensureItemIsVisible(index);
}

bool MXCombobox::editKeyDown(const EventArgs& args)
{
    const auto& key = static_cast<const KeyEventArgs&>(args);
    if (key.scancode != Key::ArrowDown && key.scancode != Key::ArrowUp)
        return false;
    stepSelection(key.scancode == Key::ArrowDown ? 1 : -1);
    acceptListSelection();
    return true;
}

void MXCombobox::acceptListSelection()
{
    // As a click on the item: CEGUI's combo box takes its text and tells the host, which
    // listens for the combo box's "ListSelectionAccepted"; the list keeps the item as the
    // one to come back to when it closes.
    WindowEventArgs accepted(getDropList());
    (getDropList()->*DropListAccess::accept)(accepted);
}

bool MXCombobox::listKeyDown(const EventArgs& args)
{
    const auto& key = static_cast<const KeyEventArgs&>(args);
    switch (key.scancode)
    {
    case Key::ArrowDown:
    case Key::ArrowUp:
        stepSelection(key.scancode == Key::ArrowDown ? 1 : -1);
        return true;
    case Key::Return:
    case Key::NumpadEnter:
        acceptListSelection();
        hideDropList();
        return true;
    case Key::Escape:
        hideDropList();
        return true;
    default:
        return false;
    }
}

float MXCombobox::editHeight() const
{
    const Font* font = getFont();
    const float wanted = (font ? font->getLineSpacing() : 14.0f) + 2 * EditPadding;
    return std::min(std::ceil(wanted), getPixelSize().d_height);
}

void MXCombobox::performChildWindowLayout(bool nonclientSizedHint, bool clientSizedHint)
{
    RedrawnWhenUncovered<Combobox>::performChildWindowLayout(nonclientSizedHint, clientSizedHint);
    Window* edit = partOrNull(*this, EditboxName);
    Window* list = partOrNull(*this, DropListName);
    Window* button = partOrNull(*this, ButtonName);
    if (!edit || !list || !button)
        return;
    const Sizef own = getPixelSize();
    const float h = editHeight();
    edit->setArea(UVector2(cegui_absdim(0), cegui_absdim(0)),
                  USize(cegui_absdim(std::max(0.0f, own.d_width - h)), cegui_absdim(h)));
    button->setArea(UVector2(cegui_absdim(std::max(0.0f, own.d_width - h)), cegui_absdim(0)),
                    USize(cegui_absdim(std::min(h, own.d_width)), cegui_absdim(h)));
    list->setArea(UVector2(cegui_absdim(0), cegui_absdim(h)),
                  USize(cegui_absdim(own.d_width), cegui_absdim(std::max(0.0f, own.d_height - h))));
}

void MXCombobox::onFontChanged(WindowEventArgs& e)
{
    RedrawnWhenUncovered<Combobox>::onFontChanged(e);
    performChildWindowLayout();
}

} // namespace MoxieLook
} // namespace CEGUI
