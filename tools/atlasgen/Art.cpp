// Every image of the "MoxieLook" imageset, painted from one palette: cool slate
// frames, near-white fills for black text, one blue accent for focus and selection.
#include "Art.h"

#include "Paint.h"

#include <cmath>

namespace atlasgen
{
namespace
{
// The palette.
constexpr Rgb White = hex(0xFFFFFF);
constexpr Rgb Ink = hex(0x26313D);         // arrows, marks, glyphs
constexpr Rgb Border = hex(0x5E6E81);      // frames at rest
constexpr Rgb BorderLight = hex(0x9AA8B8); // sunken and quiet frames
constexpr Rgb Accent = hex(0x3B78D8);      // focus and selection
constexpr Rgb AccentDark = hex(0x2858A8);
constexpr Rgb AccentLight = hex(0xCFE0F8);
constexpr Rgb FaceTop = hex(0xFDFEFF);
constexpr Rgb FaceBottom = hex(0xDCE3EC);
constexpr Rgb PushedTop = hex(0xBCC8D6);
constexpr Rgb PushedBottom = hex(0xDCE3EC);
constexpr Rgb Panel = hex(0xEEF1F5);
constexpr Rgb DisabledFace = hex(0xE3E5E8);
constexpr Rgb DisabledBorder = hex(0xA6ADB6);
constexpr Rgb TooltipFace = hex(0xFFF8D6);
constexpr Rgb TooltipBorder = hex(0xA8955A);
constexpr Rgb TitleTop = hex(0x5A93E4);
constexpr Rgb TitleBottom = hex(0x2F66BC);
constexpr Rgb Danger = hex(0xD9443C);

FrameNames frameNames(const std::string& prefix, const std::string& edgeSuffix = "")
{
    return {prefix + "TopLeft",
            prefix + "Top" + edgeSuffix,
            prefix + "TopRight",
            prefix + "Left" + edgeSuffix,
            prefix + "Right" + edgeSuffix,
            prefix + "BottomLeft",
            prefix + "Bottom" + edgeSuffix,
            prefix + "BottomRight"};
}

// A raised frame: dark line, light bevel inside it.
std::vector<Ring> raised(Rgb line, Rgb bevel, double bevelAlpha)
{
    return {{line, mix(line, Ink, 0.25)}, {bevel, mix(bevel, Ink, 0.3), bevelAlpha}};
}

void box(cairo_t* cr, double size, double radius, Rgb line, Rgb top, Rgb bottom)
{
    roundedRect(cr, 0.5, 0.5, size - 1, size - 1, radius);
    setVerticalGradient(cr, 0, size, top, bottom);
    cairo_fill_preserve(cr);
    setColour(cr, line);
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
}

void paintButtons(Atlas& atlas)
{
    // "MoxieLook/Button": the fill is tinted by the look's own gradient, so it stays white.
    addRingFrame(atlas, frameNames("ButtonArrow"), 4, 3.5, raised(Border, White, 0.85));
    addRingFrame(atlas, frameNames("ButtonArrowFocus"), 4, 3.5, raised(Accent, White, 0.9));
    addGradient(atlas, "ButtonArrowFill", 4, 16, White, hex(0xF4F6F8));

    addRingFrame(atlas, frameNames("ButtonNormal"), 4, 3.5, raised(Border, White, 0.8));
    // The extended button writes black text at rest and white under the pointer on this
    // same fill: a mid-tone that carries both.
    addGradient(atlas, "ButtonNormalFill", 4, 24, hex(0x9DB6D8), hex(0x5F7FB0));
    addRingFrame(atlas, frameNames("ButtonPushed"), 4, 3.5,
                 {{AccentDark, AccentDark}, {Ink, Ink, 0.12}});
    // Pressed, the text is dark grey: the fill lights up.
    addGradient(atlas, "ButtonPushedFill", 4, 24, hex(0xDCE6F3), hex(0xB9CBE3));

    addRingFrame(atlas, frameNames("ButtonScroll"), 3, 2.5, raised(Border, White, 0.8));
    addRingFrame(atlas, frameNames("ButtonScrollFocus"), 3, 2.5, raised(Accent, White, 0.9));
    addGradient(atlas, "ButtonScrollFill", 4, 16, FaceTop, FaceBottom);

    // A flat tool button, one stretched image per state, named as
    // ButtonEx::SetStandardizedFrame expects: base + "Normal", "Focus", "Clicked", "Disabled".
    const struct
    {
        const char* state;
        Rgb top, bottom, line;
    } tools[] = {{"Normal", FaceTop, FaceBottom, Border},
                 {"Focus", White, AccentLight, Accent},
                 {"Clicked", PushedTop, PushedBottom, AccentDark},
                 {"Disabled", DisabledFace, DisabledFace, DisabledBorder}};
    for (const auto& tool : tools)
        atlas.add(std::string("ToolButton") + tool.state, 24, 24,
                  [tool](cairo_t* cr, double w, double)
                  { box(cr, w, 4, tool.line, tool.top, tool.bottom); });

    // Menu buttons: a pill in three pieces per state.
    struct MenuState
    {
        const char* name;
        Rgb top, bottom, line;
    };
    const MenuState states[] = {{"Normal", FaceTop, FaceBottom, Border},
                                {"Focus", hex(0x5C95E6), AccentDark, AccentDark},
                                {"Clicked", hex(0xD2E0F4), hex(0xA9C2E8), AccentDark},
                                {"Desactived", DisabledFace, DisabledFace, DisabledBorder}};
    for (const MenuState& state : states)
    {
        const std::string prefix = std::string("ButtonMenu") + state.name;
        addBar(atlas, {prefix + "Left", prefix + "Middle", prefix + "Right"}, 7, 24,
               [state](cairo_t* cr, double w, double h)
               {
                   roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 6);
                   setVerticalGradient(cr, 0, h, state.top, state.bottom);
                   cairo_fill_preserve(cr);
                   setColour(cr, state.line);
                   cairo_set_line_width(cr, 1);
                   cairo_stroke(cr);
                   roundedRect(cr, 1.5, 1.5, w - 3, h - 3, 5);
                   setColour(cr, White, 0.35);
                   cairo_stroke(cr);
               });
    }
}

void paintFrames(Atlas& atlas)
{
    addRingFrame(atlas, frameNames("StaticFrame"), 4, 3.0,
                 {{BorderLight, BorderLight}, {White, White, 0.7}});
    addGradient(atlas, "StaticFrameFill", 4, 4, hex(0xFBFCFE), hex(0xFBFCFE));
    // Lists look sunken: the shade falls on the top and left.
    addRingFrame(atlas, frameNames("StaticFrameList"), 4, 2.0,
                 {{Border, BorderLight}, {hex(0xC5CED9), hex(0xF2F4F7)}});
    addGradient(atlas, "Background", 4, 4, Panel, Panel);
    // The tree view's field: dark, for its light text colours.
    addGradient(atlas, "TreeViewFill", 4, 16, hex(0x34424F), hex(0x2A3540));

    addRingFrame(atlas, frameNames("WindowFrame"), 6, 5.0,
                 {{hex(0x23497F), hex(0x1F3F6F)},
                  {TitleTop, TitleBottom},
                  {TitleTop, TitleBottom},
                  {hex(0xA7C3EA), hex(0x90AEDB)}});
    addRingFrame(atlas,
                 {"TooltipTopLeft", "TooltipTopEdge", "TooltipTopRight", "TooltipLeftEdge",
                  "TooltipRightEdge", "TooltipBottomLeft", "TooltipBottomEdge",
                  "TooltipBottomRight"},
                 4, 3.0, {{TooltipBorder, TooltipBorder}, {White, White, 0.6}});
    addGradient(atlas, "TooltipMiddle", 4, 16, hex(0xFFFBE6), TooltipFace);

    addRingFrame(atlas, frameNames("PopupMenuFrame"), 4, 2.0,
                 {{Border, Border}, {White, White, 0.9}});
    addGradient(atlas, "PopupMenuFill", 4, 4, hex(0xF8FAFC), hex(0xF8FAFC));
}

void triangle(cairo_t* cr, double cx, double cy, double size, double angle, Rgb colour)
{
    // A triangle pointing along `angle` (0 = right), centred on (cx, cy).
    const double r = size / 2;
    std::vector<std::array<double, 2>> points;
    for (int i = 0; i < 3; ++i)
    {
        const double a = angle + i * 2 * M_PI / 3;
        points.push_back({cx + r * std::cos(a), cy + r * std::sin(a)});
    }
    polygon(cr, points);
    setColour(cr, colour);
    cairo_fill(cr);
}

void paintArrows(Atlas& atlas)
{
    const struct
    {
        const char* name;
        double angle;
    } arrows[] = {{"LargeLeftArrow", M_PI},
                  {"LargeRightArrow", 0},
                  {"LargeUpArrow", -M_PI / 2},
                  {"LargeDownArrow", M_PI / 2}};
    for (const auto& arrow : arrows)
        atlas.add(arrow.name, 16, 16,
                  [arrow](cairo_t* cr, double w, double h)
                  { triangle(cr, w / 2, h / 2, 9, arrow.angle, Ink); });

    atlas.add("NavigateClose", 12, 12,
              [](cairo_t* cr, double w, double h)
              { triangle(cr, w / 2 - 0.5, h / 2, 8, 0, Border); });
    atlas.add("NavigateOpen", 12, 12,
              [](cairo_t* cr, double w, double h)
              { triangle(cr, w / 2, h / 2 - 0.5, 8, M_PI / 2, Ink); });
    atlas.add("NavigatePoint", 12, 12,
              [](cairo_t* cr, double w, double h)
              {
                  cairo_arc(cr, w / 2, h / 2, 2, 0, 2 * M_PI);
                  setColour(cr, BorderLight);
                  cairo_fill(cr);
              });
    atlas.add("PopupMenuArrow", 8, 8,
              [](cairo_t* cr, double w, double h) { triangle(cr, w / 2, h / 2, 6, 0, Ink); });
    atlas.add("HeaderBarSortUp", 8, 6,
              [](cairo_t* cr, double, double)
              {
                  polygon(cr, {{0.5, 5.5}, {4, 0.5}, {7.5, 5.5}});
                  setColour(cr, Border);
                  cairo_fill(cr);
              });
    atlas.add("HeaderBarSortDown", 8, 6,
              [](cairo_t* cr, double, double)
              {
                  polygon(cr, {{0.5, 0.5}, {4, 5.5}, {7.5, 0.5}});
                  setColour(cr, Border);
                  cairo_fill(cr);
              });
}

void paintToggles(Atlas& atlas)
{
    atlas.add("CheckboxNormal", 13, 13,
              [](cairo_t* cr, double w, double) { box(cr, w, 2, Border, White, hex(0xE6EBF1)); });
    atlas.add("CheckboxHover", 13, 13,
              [](cairo_t* cr, double w, double) { box(cr, w, 2, Accent, White, AccentLight); });
    atlas.add("CheckboxMark", 13, 13,
              [](cairo_t* cr, double, double)
              {
                  cairo_set_line_width(cr, 2.0);
                  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
                  cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
                  cairo_move_to(cr, 3.5, 6.5);
                  cairo_line_to(cr, 5.5, 9.0);
                  cairo_line_to(cr, 9.8, 3.6);
                  setColour(cr, AccentDark);
                  cairo_stroke(cr);
              });

    // The radio button's indicator: a round knob; selected, it carries a dot. Under the
    // pointer the ring turns to the accent and the knob takes a blue tint.
    auto knob = [](Rgb line, Rgb top, Rgb bottom, bool dot, Rgb dotColour)
    {
        return [=](cairo_t* cr, double w, double h)
        {
            cairo_arc(cr, w / 2, h / 2, w / 2 - 1, 0, 2 * M_PI);
            setVerticalGradient(cr, 0, h, top, bottom);
            cairo_fill_preserve(cr);
            setColour(cr, line);
            cairo_set_line_width(cr, 1);
            cairo_stroke(cr);
            if (dot)
            {
                cairo_arc(cr, w / 2, h / 2, 3.5, 0, 2 * M_PI);
                setColour(cr, dotColour);
                cairo_fill(cr);
            }
        };
    };
    atlas.add("LiftMiddleNormal", 16, 16, knob(Border, White, hex(0xE3E9F0), false, Ink));
    atlas.add("LiftMiddleFocus", 16, 16, knob(Accent, White, AccentLight, false, Ink));
    atlas.add("LiftMiddlePushed", 16, 16, knob(AccentDark, White, hex(0xE3E9F0), true, AccentDark));
    atlas.add("LiftMiddlePushedFocus", 16, 16, knob(Accent, White, AccentLight, true, Accent));

    // The toggle indicator of toggle and task-bar buttons. The mark is a whole selected
    // indicator: the toggle button draws it instead of the box, the task bar over it.
    atlas.add("TaskbarButtonNormal", 16, 16,
              [](cairo_t* cr, double w, double) { box(cr, w, 3, Border, White, hex(0xE3E9F0)); });
    atlas.add("TaskbarButtonHover", 16, 16,
              [](cairo_t* cr, double w, double) { box(cr, w, 3, Accent, White, AccentLight); });
    auto mark = [](Rgb line, Rgb top, Rgb bottom)
    {
        return [=](cairo_t* cr, double w, double)
        {
            box(cr, w, 3, line, top, bottom);
            roundedRect(cr, 5, 5, 6, 6, 1.5);
            setColour(cr, White, 0.95);
            cairo_fill(cr);
        };
    };
    atlas.add("TaskbarButtonMark", 16, 16, mark(AccentDark, Accent, AccentDark));
    atlas.add("TaskbarButtonMarkHover", 16, 16, mark(Accent, hex(0x8DB8F2), Accent));
    addBar(atlas, {"TaskbarLeft", "TaskbarMiddle", "TaskbarRight"}, 6, 32,
           [](cairo_t* cr, double w, double h)
           {
               cairo_rectangle(cr, 0, 0, w, h);
               setVerticalGradient(cr, 0, h, hex(0x3C4A5B), hex(0x27313D));
               cairo_fill(cr);
               cairo_rectangle(cr, 0, 0, w, 1);
               setColour(cr, hex(0x7F91A6));
               cairo_fill(cr);
           });
}

void glyphButton(Atlas& atlas, const std::string& base, const Painter& glyph)
{
    const struct
    {
        const char* state;
        Rgb face;
        double alpha;
    } states[] = {{"Normal", White, 0.18}, {"Hover", White, 0.38}, {"Pushed", Ink, 0.3}};
    for (const auto& state : states)
        atlas.add(base + state.state, 16, 16,
                  [=](cairo_t* cr, double w, double h)
                  {
                      roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 3);
                      setColour(cr,
                                base == "CloseButton" && std::string(state.state) != "Normal"
                                    ? Danger
                                    : state.face,
                                base == "CloseButton" && std::string(state.state) != "Normal"
                                    ? 1.0
                                    : state.alpha);
                      cairo_fill_preserve(cr);
                      setColour(cr, White, 0.55);
                      cairo_set_line_width(cr, 1);
                      cairo_stroke(cr);
                      glyph(cr, w, h);
                  });
}

void paintTitleButtons(Atlas& atlas)
{
    auto stroke = [](cairo_t* cr)
    {
        setColour(cr, White);
        cairo_set_line_width(cr, 1.6);
        cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
        cairo_stroke(cr);
    };
    glyphButton(atlas, "CloseButton",
                [stroke](cairo_t* cr, double, double)
                {
                    cairo_move_to(cr, 5, 5);
                    cairo_line_to(cr, 11, 11);
                    cairo_move_to(cr, 11, 5);
                    cairo_line_to(cr, 5, 11);
                    stroke(cr);
                });
    glyphButton(atlas, "MinimizeButton",
                [stroke](cairo_t* cr, double, double)
                {
                    cairo_move_to(cr, 4.5, 11);
                    cairo_line_to(cr, 11.5, 11);
                    stroke(cr);
                });
    glyphButton(atlas, "TitleizeButton",
                [stroke](cairo_t* cr, double, double)
                {
                    cairo_rectangle(cr, 4.5, 4.5, 7, 7);
                    cairo_move_to(cr, 4.5, 6.2);
                    cairo_line_to(cr, 11.5, 6.2);
                    stroke(cr);
                });

    for (const char* state : {"", "Focus"})
    {
        const bool active = *state != 0;
        const std::string prefix = std::string("Titlebar") + state;
        addBar(atlas, {prefix + "Left", prefix + "Middle", prefix + "Right"}, 6, 22,
               [active](cairo_t* cr, double w, double h)
               {
                   roundedRect(cr, 0, 0, w, h + 6, 5);
                   setVerticalGradient(cr, 0, h, active ? TitleTop : hex(0x9FB0C4),
                                       active ? TitleBottom : hex(0x7E8FA4));
                   cairo_fill(cr);
                   cairo_rectangle(cr, 5, 1, w - 10, 1);
                   setColour(cr, White, 0.35);
                   cairo_fill(cr);
               });
    }
}

void paintScrolling(Atlas& atlas)
{
    auto ridges = [](bool vertical)
    {
        return [vertical](cairo_t* cr, double, double)
        {
            for (int i = 0; i < 3; ++i)
            {
                const double at = 1.5 + 2.5 * i;
                if (vertical)
                    cairo_rectangle(cr, 0, at - 0.5, 8, 1);
                else
                    cairo_rectangle(cr, at - 0.5, 0, 1, 8);
                setColour(cr, Border, 0.8);
                cairo_fill(cr);
                if (vertical)
                    cairo_rectangle(cr, 0, at + 0.5, 8, 1);
                else
                    cairo_rectangle(cr, at + 0.5, 0, 1, 8);
                setColour(cr, White, 0.9);
                cairo_fill(cr);
            }
        };
    };
    atlas.add("HorzScrollbarGrip", 8, 8, ridges(false));
    atlas.add("VertScrollbarGrip", 8, 8, ridges(true));

    addBar(atlas, {"SliderTrackLeft", "SlidertrackMiddle", "SliderTrackRight"}, 3, 6,
           [](cairo_t* cr, double w, double h)
           {
               roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 2.5);
               setVerticalGradient(cr, 0, h, hex(0xB9C3CF), hex(0xE4E9EF));
               cairo_fill_preserve(cr);
               setColour(cr, Border);
               cairo_set_line_width(cr, 1);
               cairo_stroke(cr);
           });
    atlas.add("SliderTick", 1, 4,
              [](cairo_t* cr, double w, double h)
              {
                  cairo_rectangle(cr, 0, 0, w, h);
                  setColour(cr, Border);
                  cairo_fill(cr);
              });
    for (const char* state : {"Normal", "Hover"})
    {
        const bool hover = std::string(state) == "Hover";
        atlas.add(std::string("SliderThumb") + state, 11, 20,
                  [hover](cairo_t* cr, double w, double h)
                  {
                      roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 3);
                      setVerticalGradient(cr, 0, h, White, hover ? AccentLight : FaceBottom);
                      cairo_fill_preserve(cr);
                      setColour(cr, hover ? Accent : Border);
                      cairo_set_line_width(cr, 1);
                      cairo_stroke(cr);
                      for (int i = 0; i < 3; ++i)
                      {
                          cairo_rectangle(cr, 3, 7 + 2.5 * i, 5, 1);
                          setColour(cr, hover ? Accent : Border, 0.7);
                          cairo_fill(cr);
                      }
                  });
    }

    for (const char* state : {"Normal", "Hover", "Pushed"})
    {
        const std::string s = state;
        const Rgb top = s == "Pushed" ? PushedTop : White;
        const Rgb bottom = s == "Normal" ? FaceBottom : s == "Hover" ? AccentLight : PushedBottom;
        const Rgb line = s == "Normal" ? Border : Accent;
        atlas.add("SpinnerUp" + s, 16, 10,
                  [=](cairo_t* cr, double w, double h)
                  {
                      box(cr, w, 2, line, top, bottom);
                      cairo_rectangle(cr, 0, 0, w, h);
                      cairo_clip(cr);
                      triangle(cr, w / 2, h / 2 + 0.5, 6, -M_PI / 2, Ink);
                  });
        atlas.add("SpinnerDown" + s, 16, 10,
                  [=](cairo_t* cr, double w, double h)
                  {
                      cairo_save(cr);
                      cairo_translate(cr, 0, h - w);
                      box(cr, w, 2, line, top, bottom);
                      cairo_restore(cr);
                      triangle(cr, w / 2, h / 2 - 0.5, 6, M_PI / 2, Ink);
                  });
        atlas.add("ComboboxListButton" + s, 20, 20,
                  [=](cairo_t* cr, double w, double h)
                  {
                      box(cr, w, 3, line, top, bottom);
                      triangle(cr, w / 2, h / 2 + 0.5, 8, M_PI / 2, Ink);
                  });
    }
}

void paintTabs(Atlas& atlas)
{
    // The tab looks size their side columns by the upper middle piece and the pane's lower
    // row by the lower piece's width: middles as wide as the corners keep both true.
    constexpr int TabMiddle = 4;
    auto tab = [](bool selected)
    {
        return [selected](cairo_t* cr, double w, double h)
        {
            roundedRect(cr, 0.5, 0.5, w - 1, h + 8, 4);
            setVerticalGradient(cr, 0, h, selected ? White : hex(0xE9EDF2),
                                selected ? Panel : hex(0xD5DCE5));
            cairo_fill_preserve(cr);
            setColour(cr, Border);
            cairo_set_line_width(cr, 1);
            cairo_stroke(cr);
            if (!selected)
            {
                cairo_rectangle(cr, 0, h - 1, w, 1);
                setColour(cr, Border);
                cairo_fill(cr);
            }
            else
            {
                cairo_rectangle(cr, 1, 1, w - 2, 2);
                setColour(cr, Accent);
                cairo_fill(cr);
            }
        };
    };
    addGrid(atlas,
            {"TabButtonUpperLeftNormal", "TabButtonUpperNormal", "TabButtonUpperRightNormal",
             "TabButtonLeftNormal", "TabButtonMiddleNormal", "TabButtonRightNormal",
             "TabButtonLowerLeftNormal", "TabButtonLowerNormal", "TabButtonLowerRightNormal"},
            4, tab(false), TabMiddle);
    addGrid(atlas,
            {"TabButtonUpperLeftSelected", "TabButtonUpperSelected", "TabButtonUpperRightSelected",
             "TabButtonLeftSelected", "TabButtonMiddleSelected", "TabButtonRightSelected", "", "",
             ""},
            4, tab(true), TabMiddle);
    addGrid(
        atlas,
        {"", "", "", "TabPaneLeft", "TabPaneMiddle", "TabPaneRight", "TabPaneLowerLeft",
         "TabPaneLower", "TabPaneLowerRight"},
        4,
        [](cairo_t* cr, double w, double h)
        {
            roundedRect(cr, 0.5, -8, w - 1, h + 7.5, 3);
            setColour(cr, Panel);
            cairo_fill_preserve(cr);
            setColour(cr, Border);
            cairo_set_line_width(cr, 1);
            cairo_stroke(cr);
        },
        TabMiddle);
    atlas.add("TabControlButtonPaneFiller", 4, 24,
              [](cairo_t* cr, double w, double h)
              {
                  cairo_rectangle(cr, 0, h - 1, w, 1);
                  setColour(cr, Border);
                  cairo_fill(cr);
              });
}

void paintWidgets(Atlas& atlas)
{
    addGradient(atlas, "HeaderBarBackdropNormal", 4, 20, White, hex(0xDDE3EA));
    addGradient(atlas, "HeaderBarBackdropHover", 4, 20, White, AccentLight);
    atlas.add("HeaderBarSplitterNormal", 2, 20,
              [](cairo_t* cr, double, double h)
              {
                  cairo_rectangle(cr, 0, 3, 1, h - 6);
                  setColour(cr, BorderLight);
                  cairo_fill(cr);
                  cairo_rectangle(cr, 1, 3, 1, h - 6);
                  setColour(cr, White);
                  cairo_fill(cr);
              });
    atlas.add("HeaderBarSplitterHover", 2, 20,
              [](cairo_t* cr, double w, double h)
              {
                  cairo_rectangle(cr, 0, 0, w, h);
                  setColour(cr, Accent);
                  cairo_fill(cr);
              });

    addBar(atlas, {"ProgressBarLeft", "ProgressBarMiddle", "ProgressBarRight"}, 4, 16,
           [](cairo_t* cr, double w, double h)
           {
               roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 3);
               setVerticalGradient(cr, 0, h, hex(0xD3DAE3), hex(0xF4F6F9));
               cairo_fill_preserve(cr);
               setColour(cr, Border);
               cairo_set_line_width(cr, 1);
               cairo_stroke(cr);
           });
    addBar(atlas, {"ProgressBarLitLeft", "ProgressBarLitMiddle", "ProgressBarLitRight"}, 4, 16,
           [](cairo_t* cr, double w, double h)
           {
               roundedRect(cr, 1.5, 1.5, w - 3, h - 3, 2);
               setVerticalGradient(cr, 0, h, hex(0x79A9EE), AccentDark);
               cairo_fill(cr);
           });

    // A meter's segment: white, shaded at the foot, tinted by the looks.
    addGradient(atlas, "MeterSegment", 4, 8, White, hex(0xC8D0DA));

    addGradient(atlas, "MenubarBackground", 4, 24, White, hex(0xE1E7EE));
    addBar(atlas, {"MenuItemFocusLeft", "MenuItemFocusMiddle", "MenuItemFocusRight"}, 3, 20,
           [](cairo_t* cr, double w, double h)
           {
               roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 2.5);
               setVerticalGradient(cr, 0, h, hex(0xDCE8FA), hex(0xBCD3F5));
               cairo_fill_preserve(cr);
               setColour(cr, hex(0x8DB2EA));
               cairo_set_line_width(cr, 1);
               cairo_stroke(cr);
           });

    // Edit boxes: sunken as lists are; the accent marks the focused one.
    addRingFrame(atlas, frameNames("EditboxFrame"), 4, 2.0,
                 {{Border, BorderLight}, {hex(0xD8DEE6), hex(0xF4F6F8)}});
    addRingFrame(atlas, frameNames("EditboxFrameFocus"), 4, 2.0,
                 {{Accent, Accent}, {AccentLight, hex(0xEEF4FD)}});
    addBar(atlas, {"MenuItemOpenLeft", "MenuItemOpenMiddle", "MenuItemOpenRight"}, 3, 20,
           [](cairo_t* cr, double w, double h)
           {
               roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 2.5);
               setVerticalGradient(cr, 0, h, hex(0xB9CFF1), hex(0xD4E2F7));
               cairo_fill_preserve(cr);
               setColour(cr, AccentDark);
               cairo_set_line_width(cr, 1);
               cairo_stroke(cr);
           });
    atlas.add("MenuSeparator", 8, 2,
              [](cairo_t* cr, double w, double)
              {
                  cairo_rectangle(cr, 0, 0, w, 1);
                  setColour(cr, BorderLight);
                  cairo_fill(cr);
                  cairo_rectangle(cr, 0, 1, w, 1);
                  setColour(cr, White);
                  cairo_fill(cr);
              });
    // A soft shadow under pop-ups: dark, fading at its rim.
    atlas.add("PopupMenuShadow", 12, 12,
              [](cairo_t* cr, double w, double h)
              {
                  for (int ring = 0; ring < 3; ++ring)
                  {
                      roundedRect(cr, ring, ring, w - 2 * ring, h - 2 * ring, 4 - ring);
                      setColour(cr, hex(0x1A2430), 0.08 + 0.06 * ring);
                      cairo_fill(cr);
                  }
              });
    addGradient(atlas, "EditboxFill", 4, 4, White, White);
    addGradient(atlas, "EditboxFillReadOnly", 4, 4, Panel, Panel);
    addGradient(atlas, "EditboxFillDisabled", 4, 4, DisabledFace, DisabledFace);
    addGradient(atlas, "EditboxCarat", 1, 16, Ink, Ink);
    addGradient(atlas, "EditboxSelection", 4, 4, hex(0xA9C8F2), hex(0xA9C8F2));
    addGradient(atlas, "EditboxSelectionInactive", 4, 4, hex(0xD5DCE5), hex(0xD5DCE5));
    addGradient(atlas, "ListboxSelectionBrush", 4, 16, hex(0xC5DAF7), hex(0xA9C8F2));
    addGradient(atlas, "ListboxHoverBrush", 4, 16, hex(0xEEF4FD), hex(0xDDE9FA));

    atlas.add("ClockBackground", 160, 24,
              [](cairo_t* cr, double w, double h)
              {
                  roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 4);
                  setVerticalGradient(cr, 0, h, hex(0xF7F9FC), hex(0xDDE4EC));
                  cairo_fill_preserve(cr);
                  setColour(cr, Border);
                  cairo_set_line_width(cr, 1);
                  cairo_stroke(cr);
              });

    // The chart's field: dark, for its white labels and red grid.
    addGradient(atlas, "DiagramBackground", 4, 16, hex(0x2F3B48), hex(0x25303B));
    // Diagram pieces are white so that each series' colour tints them.
    addGradient(atlas, "DiagramBase", 4, 4, White, White);
    // The keyboard focus ring's bars: the accent of focus and selection.
    addGradient(atlas, "FocusRing", 4, 4, Accent, Accent);
    atlas.add("DiagramCorner", 8, 8,
              [](cairo_t* cr, double w, double h)
              {
                  polygon(cr, {{0, h}, {w, 0}, {w, h}});
                  setColour(cr, White);
                  cairo_fill(cr);
              });
}

void paintCursors(Atlas& atlas)
{
    auto outlined = [](cairo_t* cr)
    {
        setColour(cr, White);
        cairo_fill_preserve(cr);
        setColour(cr, hex(0x000000));
        cairo_set_line_width(cr, 1);
        cairo_set_line_join(cr, CAIRO_LINE_JOIN_MITER);
        cairo_stroke(cr);
    };
    atlas.add("MouseArrow", 12, 19,
              [outlined](cairo_t* cr, double, double)
              {
                  polygon(cr, {{0.5, 0.5},
                               {0.5, 15.5},
                               {4.2, 12.0},
                               {6.8, 18.0},
                               {9.0, 17.0},
                               {6.5, 11.2},
                               {11.5, 11.2}});
                  outlined(cr);
              });
    // A double-headed arrow along `angle`, in a square of `size`.
    auto doubleArrow = [outlined](double angle)
    {
        return [=](cairo_t* cr, double w, double h)
        {
            cairo_translate(cr, w / 2, h / 2);
            cairo_rotate(cr, angle);
            const double l = std::min(w, h) * 0.5 - 1;
            polygon(cr, {{-l, 0},
                         {-l + 4, -4},
                         {-l + 4, -1.5},
                         {l - 4, -1.5},
                         {l - 4, -4},
                         {l, 0},
                         {l - 4, 4},
                         {l - 4, 1.5},
                         {-l + 4, 1.5},
                         {-l + 4, 4}});
            outlined(cr);
        };
    };
    atlas.add("MouseEsWeCursor", 19, 19, doubleArrow(0));
    atlas.add("MouseNoSoCursor", 19, 19, doubleArrow(M_PI / 2));
    atlas.add("MouseNwSeCursor", 19, 19, doubleArrow(M_PI / 4));
    atlas.add("MouseNeSwCursor", 19, 19, doubleArrow(-M_PI / 4));
    atlas.add("MouseMoveCursor", 19, 19,
              [doubleArrow](cairo_t* cr, double w, double h)
              {
                  cairo_save(cr);
                  doubleArrow(0)(cr, w, h);
                  cairo_restore(cr);
                  doubleArrow(M_PI / 2)(cr, w, h);
              });
    atlas.add("MouseTextBar", 7, 17,
              [](cairo_t* cr, double, double)
              {
                  cairo_move_to(cr, 1, 1.5);
                  cairo_line_to(cr, 6, 1.5);
                  cairo_move_to(cr, 1, 15.5);
                  cairo_line_to(cr, 6, 15.5);
                  cairo_move_to(cr, 3.5, 1.5);
                  cairo_line_to(cr, 3.5, 15.5);
                  setColour(cr, White);
                  cairo_set_line_width(cr, 3);
                  cairo_stroke_preserve(cr);
                  setColour(cr, hex(0x000000));
                  cairo_set_line_width(cr, 1);
                  cairo_stroke(cr);
              });
}

// Icons for hosts' buttons, badges and the gallery's samples.
// Glyphs drawn on a 16 x 16 grid, for icons and the task-bar bitmaps.
void starGlyph(cairo_t* cr)
{
    std::vector<std::array<double, 2>> points;
    for (int i = 0; i < 10; ++i)
    {
        const double r = i % 2 ? 3.2 : 7.2;
        const double a = -M_PI / 2 + i * M_PI / 5;
        points.push_back({8 + r * std::cos(a), 8.5 + r * std::sin(a)});
    }
    polygon(cr, points);
    setVerticalGradient(cr, 0, 16, hex(0xFFD75E), hex(0xF0A81C));
    cairo_fill_preserve(cr);
    setColour(cr, hex(0xB57A0E));
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
}

void folderGlyph(cairo_t* cr)
{
    roundedRect(cr, 1.5, 2.5, 6, 4, 1);
    roundedRect(cr, 1.5, 4.5, 13, 9, 1.5);
    setVerticalGradient(cr, 2, 14, hex(0xFFD98A), hex(0xE8B04A));
    cairo_fill_preserve(cr);
    setColour(cr, hex(0xB07E22));
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
}

void documentGlyph(cairo_t* cr)
{
    polygon(cr, {{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}});
    setColour(cr, White);
    cairo_fill_preserve(cr);
    setColour(cr, Border);
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
    for (int i = 0; i < 3; ++i)
    {
        cairo_rectangle(cr, 5, 6 + 2.5 * i, 6, 1);
        setColour(cr, BorderLight);
        cairo_fill(cr);
    }
}

// A task-bar bitmap set for a window: "<name>" at rest, "...Focus" under the pointer,
// "...Select" for the active window, "...SelectFocus" both.
void taskbarBitmaps(Atlas& atlas, const std::string& name, void (*glyph)(cairo_t*))
{
    const struct
    {
        const char* suffix;
        Rgb line, top, bottom;
    } states[] = {{"", hex(0x1E2731), hex(0x58687B), hex(0x3E4C5D)},
                  {"Focus", hex(0x1E2731), hex(0x6D7F94), hex(0x4F6075)},
                  {"Select", AccentDark, hex(0x5A93E4), hex(0x2F66BC)},
                  {"SelectFocus", AccentDark, hex(0x79AAEE), hex(0x447CD0)}};
    for (const auto& state : states)
        atlas.add(name + state.suffix, 40, 26,
                  [=](cairo_t* cr, double w, double h)
                  {
                      roundedRect(cr, 0.5, 0.5, w - 1, h - 1, 4);
                      setVerticalGradient(cr, 0, h, state.top, state.bottom);
                      cairo_fill_preserve(cr);
                      setColour(cr, state.line);
                      cairo_set_line_width(cr, 1);
                      cairo_stroke(cr);
                      cairo_translate(cr, (w - 16) / 2, (h - 16) / 2);
                      glyph(cr);
                  });
}

void paintIcons(Atlas& atlas)
{
    atlas.add("IconStar", 16, 16, [](cairo_t* cr, double, double) { starGlyph(cr); });
    atlas.add("IconHeart", 16, 16,
              [](cairo_t* cr, double, double)
              {
                  cairo_move_to(cr, 8, 14);
                  cairo_curve_to(cr, 1, 9, 1, 3, 5, 3);
                  cairo_curve_to(cr, 7, 3, 8, 5, 8, 5.5);
                  cairo_curve_to(cr, 8, 5, 9, 3, 11, 3);
                  cairo_curve_to(cr, 15, 3, 15, 9, 8, 14);
                  setVerticalGradient(cr, 3, 14, hex(0xF0706A), hex(0xC92F2A));
                  cairo_fill(cr);
              });
    auto disc = [](Rgb top, Rgb bottom, char mark)
    {
        return [=](cairo_t* cr, double w, double h)
        {
            cairo_arc(cr, w / 2, h / 2, w / 2 - 0.5, 0, 2 * M_PI);
            setVerticalGradient(cr, 0, h, top, bottom);
            cairo_fill(cr);
            setColour(cr, White);
            if (mark == 'i')
            {
                cairo_rectangle(cr, 7, 7, 2, 5);
                cairo_arc(cr, 8, 4.5, 1.2, 0, 2 * M_PI);
            }
            else if (mark == '!')
            {
                cairo_rectangle(cr, 7, 3.5, 2, 6);
                cairo_arc(cr, 8, 12, 1.2, 0, 2 * M_PI);
            }
            cairo_fill(cr);
        };
    };
    atlas.add("IconInfo", 16, 16, disc(hex(0x6FA3EE), AccentDark, 'i'));
    atlas.add("IconWarning", 16, 16, disc(hex(0xF5A44A), hex(0xD8661A), '!'));
    atlas.add("BadgeRed", 10, 10, disc(hex(0xF0706A), hex(0xC92F2A), ' '));
    atlas.add("BadgeGreen", 10, 10, disc(hex(0x7FD38A), hex(0x2E9B44), ' '));
    atlas.add("IconFolder", 16, 16, [](cairo_t* cr, double, double) { folderGlyph(cr); });
    atlas.add("IconDocument", 16, 16, [](cairo_t* cr, double, double) { documentGlyph(cr); });
    taskbarBitmaps(atlas, "TaskbarWindowNotes", documentGlyph);
    taskbarBitmaps(atlas, "TaskbarWindowFiles", folderGlyph);
    taskbarBitmaps(atlas, "TaskbarWindowFavourites", starGlyph);

    // Eight frames of a busy indicator: dots round a circle, the bright one advancing.
    for (int frame = 0; frame < 8; ++frame)
        atlas.add("BusyFrame" + std::to_string(frame), 16, 16,
                  [frame](cairo_t* cr, double w, double h)
                  {
                      for (int dot = 0; dot < 8; ++dot)
                      {
                          const double a = dot * M_PI / 4 - M_PI / 2;
                          const int age = (frame - dot + 8) % 8;
                          cairo_arc(cr, w / 2 + 5.5 * std::cos(a), h / 2 + 5.5 * std::sin(a), 1.6,
                                    0, 2 * M_PI);
                          setColour(cr, Accent, 1.0 - age * 0.11);
                          cairo_fill(cr);
                      }
                  });
}
} // namespace

void paintAll(Atlas& atlas)
{
    paintButtons(atlas);
    paintFrames(atlas);
    paintArrows(atlas);
    paintToggles(atlas);
    paintTitleButtons(atlas);
    paintScrolling(atlas);
    paintTabs(atlas);
    paintWidgets(atlas);
    paintCursors(atlas);
    paintIcons(atlas);
}

} // namespace atlasgen
