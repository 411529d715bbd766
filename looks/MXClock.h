// "MoxieLook/Clock": a static text showing a date and time composed from values the host
// sets field by field, laid out by a short format of letters. It reads no clock; it learns
// the conventions of the current C locale once, when it is made.
// Images: "ClockBackground" behind the text.
//
// Format tokens, separated by '%', ',' or ' ' (',' and ' ' also stand for themselves):
// "Y" year, "M" month, "D" day, "h" hour, "m" minute, "s" second, "S" hour suffix ("AM",
// "PM", or the hour abbreviation in a 24-hour locale), "n" day name, "d" day and month in
// the locale's order with its date separator, "/" the date separator; any other token
// stands for itself.
#pragma once

#include "looks/MXStatics.h"

#include <array>
#include <string>
#include <vector>

namespace CEGUI
{
namespace MoxieLook
{
class MXClock : public MXStaticText
{
public:
    static constexpr char WidgetTypeName[] = "MoxieLook/Clock";
    static constexpr char ImagesetName[] = "MoxieLook";
    static constexpr char ClockImageName[] = "ClockBackground";

    MXClock(const String& type, const String& name);

    void SetCurTimeFormat(const std::string& format);
    void SetCurYear(unsigned year) { setValue(Year, year); }
    void SetCurMonth(unsigned month) { setValue(Month, month); }
    void SetCurDay(unsigned day) { setValue(Day, day); }
    //! 24-hour locales show the hour and the abbreviation; 12-hour ones 0..12 "AM" and
    //! 1..11 "PM" (so 12 is "12 AM" and 13 "1 PM").
    void SetCurHour(unsigned hour);
    void SetCurMinute(unsigned minute) { setValue(Minute, minute); }
    void SetCurSecond(unsigned second) { setValue(Second, second); }
    unsigned GetCurYear() const { return d_numbers[Year]; }
    unsigned GetCurMonth() const { return d_numbers[Month]; }
    unsigned GetCurDay() const { return d_numbers[Day]; }
    unsigned GetCurHour() const { return d_numbers[Hour]; }
    unsigned GetCurMinute() const { return d_numbers[Minute]; }
    unsigned GetCurSecond() const { return d_numbers[Second]; }
    void SetCurDayName(const String& name);
    const String& GetCurDayName() const { return d_values[DayName]; }
    //! The locale's abbreviated name of weekday `index`, 0 Monday ... 6 Sunday; an index
    //! past Sunday gives the empty string.
    String GetWeekDayName(unsigned index) const;
    void SetHourAbbreviation(const String& abbreviation);

    bool isTwelveHourLocale() const { return d_twelveHour; }
    bool isDayFirstLocale() const { return d_dayFirst; }
    const String& getDateSeparator() const { return d_dateSeparator; }

    //! The text the values and the format give now (empty without a format).
    String composeText() const;

private:
    enum Code : unsigned
    {
        Year,
        Month,
        Day,
        Hour,
        Minute,
        Second,
        HourSuffix,
        DayName,
        CodeCount
    };
    static constexpr std::size_t MaxCodes = 7;   //!< tokens are read until this many
    static constexpr std::size_t ShownCodes = 6; //!< placeholders that receive a value

    //! A piece of the display format: literal text, or the placeholder of a code.
    struct Piece
    {
        bool placeholder;
        String text;
    };

    void probeLocale();
    void setValue(Code code, unsigned value);
    void refresh();

    bool d_twelveHour = false;
    bool d_dayFirst = false;
    String d_dateSeparator;
    String d_unused;
    String d_hourAbbreviation = "h";
    std::vector<Piece> d_format;
    std::array<unsigned, MaxCodes> d_codes{};
    std::size_t d_codeCount = 0;
    std::array<String, CodeCount> d_values;
    std::array<unsigned, 6> d_numbers{};
    std::array<String, 7> d_weekDayNames;
};

using MXClockFactory = LookFactory<MXClock>;

} // namespace MoxieLook
} // namespace CEGUI
