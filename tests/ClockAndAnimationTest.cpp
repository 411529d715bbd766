#include "looks/MXClock.h"
#include "looks/MXStatics.h"
#include "support/DrawnQuads.h"
#include "support/Gui.h"
#include "support/SheetTest.h"

#include <CEGUI/Exceptions.h>
#include <CEGUI/GUIContext.h>
#include <CEGUI/ImageManager.h>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <string>

using namespace CEGUI;
using namespace CEGUI::MoxieLook;

namespace
{
const Image* frame(int i)
{
    return &ImageManager::getSingleton().get("MoxieLook/BusyFrame" +
                                             PropertyHelper<int>::toString(i));
}

AnimatedStaticImage& animation(int frames)
{
    auto& image = static_cast<AnimatedStaticImage&>(
        moxietest::place("MoxieLook/AnimatedStaticImage", 10, 10, 32, 32));
    for (int i = 0; i < frames; ++i)
        image.setProperty("Frame", "MoxieLook/BusyFrame" + PropertyHelper<int>::toString(i));
    return image;
}

void pulse(float seconds)
{
    moxietest::context().injectTimePulse(seconds);
}

// A clock made while LC_TIME is `locale` (UTC, so the probe instant stays on the 27th).
MXClock& clockIn(const char* locale)
{
    setenv("TZ", "UTC", 1);
    tzset();
    const std::string previous = std::setlocale(LC_TIME, nullptr);
    if (!std::setlocale(LC_TIME, locale))
        ADD_FAILURE() << "locale " << locale << " is not installed (locales-all)";
    auto& clock = moxietest::placeAs<MXClock>("MoxieLook/Clock", 10, 10, 200, 26);
    std::setlocale(LC_TIME, previous.c_str());
    return clock;
}

using ClockAndAnimationTest = moxietest::SheetTest;
} // namespace

TEST_F(ClockAndAnimationTest, FramesAdvanceOnePerPeriodAndAtMostOnePerPulse)
{
    AnimatedStaticImage& none = animation(0);
    none.setImage(frame(7));
    pulse(0.1f);
    EXPECT_EQ(none.getImage(), frame(7));

    AnimatedStaticImage& one = animation(1);
    pulse(0.03f); // under the 0.04 s period: the first frame waits
    EXPECT_EQ(one.getImage(), nullptr);
    pulse(0.02f);
    EXPECT_EQ(one.getImage(), frame(0));
    EXPECT_EQ(one.getNextFrameIndex(), 0u);

    AnimatedStaticImage& three = animation(3);
    three.setFrequency(4);
    pulse(2.0f); // a stall of eight periods: one frame now, the rest pulse by pulse
    EXPECT_EQ(three.getImage(), frame(0));
    pulse(0.0f);
    EXPECT_EQ(three.getImage(), frame(1));
    pulse(0.0f);
    EXPECT_EQ(three.getImage(), frame(2));
    EXPECT_EQ(three.getNextFrameIndex(), 0u);
    for (int i = 0; i < 5; ++i)
        pulse(0.0f);
    EXPECT_EQ(three.getImage(), frame(1)); // the eighth frame
    pulse(0.0f);
    EXPECT_EQ(three.getImage(), frame(1)); // caught up

    // Frames added while running keep the index: next is 2, then the new 3, then 0.
    ASSERT_EQ(three.getNextFrameIndex(), 2u);
    three.setProperty("Frame", "MoxieLook/BusyFrame3");
    pulse(0.25f);
    EXPECT_EQ(three.getImage(), frame(2));
    pulse(0.25f);
    EXPECT_EQ(three.getImage(), frame(3));
    pulse(0.25f);
    EXPECT_EQ(three.getImage(), frame(0));
    EXPECT_EQ(three.getProperty("Frame"), "");
    // An unknown image is a blank frame in the flow.
    three.setProperty("Frame", "MoxieLook/NoSuchFrame");
    EXPECT_EQ(three.getFrameCount(), 5u);
    for (int i = 0; i < 4; ++i)
        pulse(0.25f);
    EXPECT_EQ(three.getImage(), nullptr);

    // Hidden, it keeps counting time.
    three.hide();
    pulse(0.25f);
    three.show();
    EXPECT_EQ(three.getImage(), frame(0));
}

TEST_F(ClockAndAnimationTest, FrequencyZeroStopsAndANegativeOneStepsEveryPulse)
{
    AnimatedStaticImage& image = animation(3);
    EXPECT_EQ(image.getProperty("FrameFrequency"), "25");
    image.setProperty("FrameFrequency", "0");
    pulse(1000.0f);
    EXPECT_EQ(image.getImage(), nullptr);

    image.setProperty("FrameFrequency", "-5");
    EXPECT_EQ(image.getFrequency(), -5);
    pulse(0.0f);
    EXPECT_EQ(image.getImage(), frame(0));
    pulse(0.0f);
    EXPECT_EQ(image.getImage(), frame(1));

    // The frame change reaches the screen: the window is drawn again.
    EXPECT_EQ(moxietest::drawnBy(image).at(0).image, "BusyFrame1");
    pulse(0.0f);
    EXPECT_EQ(moxietest::drawnBy(image).at(0).image, "BusyFrame2");
    image.setProperty("FrameFrequency", "2147483647");
    EXPECT_GT(image.getFrequency(), 0);
}

TEST_F(ClockAndAnimationTest, ClockComposesItsFormatInTheCLocale)
{
    MXClock& clock = clockIn("C");
    EXPECT_FALSE(clock.isTwelveHourLocale());
    EXPECT_FALSE(clock.isDayFirstLocale());
    EXPECT_EQ(clock.getDateSeparator(), "/");
    EXPECT_EQ(clock.GetWeekDayName(0), "Mon");
    EXPECT_EQ(clock.GetWeekDayName(6), "Sun");

    clock.SetCurDay(27);
    clock.SetCurMonth(6);
    clock.SetCurYear(1970);
    clock.SetCurTimeFormat("d%/%Y");
    EXPECT_EQ(clock.getText(), "6/27/1970");

    clock.SetCurDayName(clock.GetWeekDayName(5));
    clock.SetCurTimeFormat("n, D");
    EXPECT_EQ(clock.getText(), "Sat, 27");

    // 24-hour: the abbreviation takes the placeholder and the three characters after it.
    clock.SetCurHour(17);
    clock.SetCurMinute(5);
    clock.SetCurTimeFormat("h S m");
    EXPECT_EQ(clock.getText(), "17 h");
    clock.SetHourAbbreviation(":");
    clock.SetCurTimeFormat("h%S%,%,%,%m");
    EXPECT_EQ(clock.getText(), "17:5");
    clock.SetCurSecond(9);
    clock.SetCurTimeFormat("h%.%m%.%s");
    EXPECT_EQ(clock.getText(), "17.5.9");
    EXPECT_EQ(clock.GetCurSecond(), 9u);

    // A value that does not leave its placeholder behind is shown as composed.
    clock.SetCurTimeFormat("S");
    EXPECT_EQ(clock.getText(), ":");
    // Seven placeholders at most are read; six receive values.
    clock.SetCurTimeFormat("s s s s s s s s");
    EXPECT_EQ(clock.getText(), "9 9 9 9 9 9 ");
}

TEST_F(ClockAndAnimationTest, ClockFollowsDayFirstAndTwelveHourLocales)
{
    MXClock& british = clockIn("en_GB.UTF-8");
    EXPECT_TRUE(british.isDayFirstLocale());
    EXPECT_EQ(british.getDateSeparator(), "/");
    british.SetCurDay(27);
    british.SetCurMonth(6);
    british.SetCurTimeFormat("d");
    EXPECT_EQ(british.getText(), "27/6");

    MXClock& german = clockIn("de_DE.UTF-8");
    EXPECT_TRUE(german.isDayFirstLocale());
    EXPECT_EQ(german.getDateSeparator(), ".");
    EXPECT_EQ(german.GetWeekDayName(0), "Mo");

    // Locale texts are UTF-8: names and separators are whole characters.
    MXClock& spanish = clockIn("es_ES.UTF-8");
    EXPECT_EQ(spanish.GetWeekDayName(2), String(reinterpret_cast<const utf8*>("mi\xC3\xA9")));
    MXClock& japanese = clockIn("ja_JP.UTF-8");
    EXPECT_EQ(japanese.getDateSeparator(), String(reinterpret_cast<const utf8*>("\xE6\x9C\x88")));

    MXClock& american = clockIn("en_US.UTF-8");
    ASSERT_TRUE(american.isTwelveHourLocale());
    EXPECT_FALSE(american.isDayFirstLocale());
    american.SetCurTimeFormat("h S");
    const std::pair<unsigned, const char*> hours[] = {
        {12, "12 AM"}, {0, "0 AM"}, {13, "1 PM"}, {23, "11 PM"}};
    for (const auto& [hour, shown] : hours)
    {
        american.SetCurHour(hour);
        EXPECT_EQ(american.getText(), shown) << hour;
    }
}
