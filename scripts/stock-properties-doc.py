#!/usr/bin/env python3
"""Writes docs/stock-properties.md from the stock property lists the tests hold."""
import pathlib
import re

root = pathlib.Path(__file__).resolve().parent.parent
inc = (root / "tests/StockProperties.inc").read_text()
stock = {m.group(1): re.findall(r'"([A-Za-z]+)"', m.group(2))
         for m in re.finditer(r'\{"([A-Za-z]+)", \{([^}]*)\}\}', inc)}

NOTES = {
    "NormalTextColour": "the text colour while enabled",
    "DisabledTextColour": "the text colour while disabled",
    "HoverTextColour": "the text colour under the pointer",
    "PushedTextColour": "the text colour while pressed",
    "HorzFormatting": "horizontal placement (CEGUI 0.8's names and the module's)",
    "VertFormatting": "vertical placement",
    "BlinkCaret": "whether the caret blinks",
    "BlinkCaretTimeout": "seconds the caret stays shown, then hidden",
    "SelectedTextColour": "the colour of selected text",
    "ActiveSelectionColour": "tints the selection brush while focused",
    "InactiveSelectionColour": "tints the selection brush while unfocused",
    "ReadOnlyBGColour": "tints the read-only fill",
    "TitlebarFont": "the title bar's own font",
    "FrameColours": "tints the frame",
    "BackgroundColours": "tints the background",
    "NormalImage": "the normal state's picture",
    "HoverImage": "the hover state's picture",
    "PushedImage": "the pushed state's picture",
    "DisabledImage": "the disabled state's picture",
    "UseStandardImagery": "draws or leaves out the frame and fill",
    "IconImage": "the centred icon",
    "IconColours": "tints the icon",
    "VertScrollbar": "a vertical bar when the text is taller",
    "HorzScrollbar": "a horizontal bar when the text is wider",
    "VertScrollPosition": "the vertical bar's position",
    "HorzScrollPosition": "the horizontal bar's position",
    "VertScrollPageSize": "the vertical bar's page size",
    "HorzScrollPageSize": "the horizontal bar's page size",
    "VertScrollDocumentSize": "the vertical bar's document size",
    "HorzScrollDocumentSize": "the horizontal bar's document size",
    "TextColours": "the text's colours",
    "Image": "the picture",
    "ImageColours": "tints the picture",
    "FrameEnabled": "draws or leaves out the frame",
    "BackgroundEnabled": "draws or leaves out the background",
    "VerticalProgress": "the bar runs upwards",
    "ReversedProgress": "the bar runs from the other end",
    "TabButtonType": "the type of the tabs it makes",
    "VerticalScrollbar": "reads the type's orientation; the other is refused, naming the type",
    "VerticalSlider": "reads the type's orientation (across); upright is refused",
    "HorzImageFormatting": "places the custom pictures across (applied when drawn)",
    "VertImageFormatting": "places the custom pictures upright (applied when drawn)",
    "HorzLabelFormatting": "places the label across",
    "VertLabelFormatting": "places the label upright",
    "TextFormatting": "where a text that fits stands: left, right or centred",
    "EnableTop": "draws the top edge (set by CEGUI's tab control for its tabs' side)",
    "EnableBottom": "draws the bottom edge (set by CEGUI's tab control for its tabs' side)",
    "CaptionColour": "the title's colours",
    "ClientAreaColour": "tints the client area",
    "BorderWidth": "pixels between the frame and the items",
    "TextPadding": "pixels between the frame and the text",
    "TextColour": "the text's colours",
    "SelectionColour": "tints the selection brush",
    "SelectionBrush": "the image under a selected item",
    "HoverColour": "tints the band under the pointer",
    "PushedColour": "tints the band while held",
    "PushedOffColour": "tints the band while held with the pointer off",
    "OpenedColour": "tints the band while its menu is open",
    "EnabledColour": "tints the fill",
    "DisabledColour": "tints the fill while disabled",
    "ReversedDirection": "the value grows from the right",
    "RadioButtonRelativeWidth": "the picture's width as a multiple of its own",
    "RadioButtonRelativeHeight": "the picture's height as a multiple of its own",
    "NormalImageColour": "tints the picture at rest",
    "HoverImageColour": "tints the picture under the pointer",
    "PushedImageColour": "tints the picture while pressed",
    "DisabledImageColour": "tints the picture while disabled",
    "NormalEditTextColour": "the edit area's \"NormalTextColour\"",
    "SelectedEditTextColour": "the edit area's \"SelectedTextColour\"",
    "ActiveEditSelectionColour": "the edit area's \"ActiveSelectionColour\"",
    "InactiveEditSelectionColour": "the edit area's \"InactiveSelectionColour\"",
    "DropDownButtonNormalImage": "the button's \"NormalImage\"",
    "DropDownButtonHoverImage": "the button's \"HoverImage\"",
    "DropDownButtonPushedImage": "the button's \"PushedImage\"",
    "BackgroundTextColours": "a backdrop behind the caption; none until set",
    "TextBackground": "the same backdrop as \"BackgroundTextColours\"",
}

lines = [
    "# The stock skins' properties in MoxieLook", "",
    "For each MoxieLook type of a stock skin's name: every property the stock skins' looks",
    "define for it (TaharezLook, WindowsLook, VanillaSkin) and those of CEGUI's core renderer for",
    "its class, and what MoxieLook does with it. The test",
    "`StockProperties.EveryTypeTakesEveryStockSkinProperty` holds this table to the code;",
    "`scripts/stock-properties-doc.py` writes it from the test's list.",
    "Properties of CEGUI's widget classes themselves (text, selection, \"ReadOnly\", ...) are",
    "taken by every type and not listed.", "",
    "| Type | Property | In MoxieLook |", "|---|---|---|"]
for kind in sorted(stock):
    for prop in stock[kind]:
        status = "taken: " + NOTES.get(prop, "drawn as the stock skin does")
        lines.append(f'| {kind} | "{prop}" | {status} |')
(root / "docs/stock-properties.md").write_text("\n".join(lines) + "\n")
