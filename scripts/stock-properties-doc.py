#!/usr/bin/env python3
"""Writes docs/stock-properties.md from the stock property lists the tests hold."""
import pathlib
import re

root = pathlib.Path(__file__).resolve().parent.parent
inc = (root / "tests/StockProperties.inc").read_text()
stock = {m.group(1): re.findall(r'"([A-Za-z]+)"', m.group(2))
         for m in re.finditer(r'\{"([A-Za-z]+)", \{([^}]*)\}\}', inc)}
test = (root / "tests/StockPropertiesTest.cpp").read_text()
start = test.index("StillToCome = {")
block = test[start:test.index("\n};", start)]
pending = {m.group(1): set(re.findall(r'"([A-Za-z]+)"', m.group(2)))
           for m in re.finditer(r'\{"([A-Za-z]+)",\s*\{([^}]*)\}\}', block)}

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
}

lines = [
    "# The stock skins' properties in MoxieLook", "",
    "For each MoxieLook type of a stock skin's name: every property the stock skins' looks",
    "define for it (TaharezLook, WindowsLook, VanillaSkin) and those of CEGUI's core renderer for",
    "its class, and what MoxieLook does with it; \"still to come\" marks the ones not taken yet.",
    "The test `StockProperties.EveryTypeTakesTheStockSkinsPropertiesButThoseStillToCome` holds",
    "this table to the code; `scripts/stock-properties-doc.py` writes it from the test's lists.",
    "Properties of CEGUI's widget classes themselves (text, selection, \"ReadOnly\", ...) are",
    "taken by every type and not listed.", "",
    "| Type | Property | In MoxieLook |", "|---|---|---|"]
for kind in sorted(stock):
    for prop in stock[kind]:
        if prop in pending.get(kind, set()):
            status = "still to come"
        else:
            status = "taken: " + NOTES.get(prop, "drawn as the stock skin does")
        lines.append(f'| {kind} | "{prop}" | {status} |')
(root / "docs/stock-properties.md").write_text("\n".join(lines) + "\n")
