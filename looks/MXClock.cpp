#include "looks/MXClock.h"

#include "draw/Imagery.h"

#include <ctime>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
// 27 June 1970, 17:46:29 UTC: a day number above 12 and an afternoon hour.
constexpr std::time_t ProbeInstant = 15356789;

std::string formatted(const char* format, const std::tm& time)
{
    char text[256];
    const std::size_t length = std::strftime(text, sizeof text, format, &time);
    return std::string(text, length);
}

// CEGUI's decoder reads up to three bytes past a cut-off sequence: give it zeros to read.
String fromUtf8(const std::string& text)
{
    std::vector<utf8> padded(text.begin(), text.end());
    padded.resize(text.size() + 4, 0);
    return String(padded.data(), text.size());
}

String decimal(unsigned value)
{
    return String(std::to_string(value).c_str());
}

// Splits at '%', ',' and ' ', keeping ',' and ' ' as tokens and empty tokens as well.
std::vector<std::string> tokens(const std::string& format)
{
    std::vector<std::string> result;
    std::string current;
    for (char c : format)
    {
        if (c == '%' || c == ',' || c == ' ')
        {
            result.push_back(current);
            current.clear();
            if (c != '%')
                result.push_back(std::string(1, c));
        }
        else
            current += c;
    }
    result.push_back(current);
    return result;
}

// Replaces `count` characters from the first `placeholder`; a missing one changes nothing.
void replaceFirst(String& text, const char* placeholder, std::size_t count, const String& value)
{
    const String::size_type at = text.find(placeholder);
    if (at != String::npos)
        text.replace(at, count, value);
}
} // namespace

MXClock::MXClock(const String& type, const String& name) : MXStaticText(type, name)
{
    probeLocale();
    setBackgroundImage(&lookImage(ClockImageName));
    setFrameEnabled(false);
    setHorizontalFormatting(HorzTextFormat::Centred);
}

void MXClock::probeLocale()
{
    std::tm probe{};
    localtime_r(&ProbeInstant, &probe);
    d_twelveHour = formatted("%c", probe).find("PM") != std::string::npos;

    // Locale texts are UTF-8: read them as characters, not bytes.
    const String date = fromUtf8(formatted("%x", probe));
    const String::size_type at = date.find("27");
    if (at == 0)
    {
        d_dayFirst = true;
        if (date.size() > 2)
            d_dateSeparator = date.substr(2, 1);
    }
    else if (at != String::npos)
        d_dateSeparator = date.substr(at - 1, 1);

    d_codes.fill(0);
    d_values.fill(String());
    for (unsigned i = 0; i < 7; ++i)
    {
        std::tm day{};
        day.tm_wday = static_cast<int>((i + 1) % 7);
        d_weekDayNames[i] = fromUtf8(formatted("%a", day));
    }
}

void MXClock::SetCurTimeFormat(const std::string& format)
{
    d_format.clear();
    d_codeCount = 0;
    auto placeholder = [this](Code code)
    {
        d_codes[d_codeCount++] = code;
        d_format.push_back({true, ""});
    };
    for (const std::string& token : tokens(format))
    {
        if (d_codeCount >= MaxCodes)
            break;
        static const char letters[] = "YMDhmsSn";
        if (token.size() == 1 && std::string(letters).find(token[0]) != std::string::npos)
            placeholder(static_cast<Code>(std::string(letters).find(token[0])));
        else if (token == "d")
        {
            placeholder(d_dayFirst ? Day : Month);
            d_format.push_back({false, d_dateSeparator});
            if (d_codeCount < MaxCodes)
                placeholder(d_dayFirst ? Month : Day);
        }
        else if (token == "/")
            d_format.push_back({false, d_dateSeparator});
        else
            d_format.push_back({false, fromUtf8(token)});
    }
    refresh();
}

void MXClock::setValue(Code code, unsigned value)
{
    d_numbers[code] = value;
    d_values[code] = decimal(value);
    refresh();
}

void MXClock::SetCurHour(unsigned hour)
{
    d_numbers[Hour] = hour;
    if (!d_twelveHour)
    {
        d_values[HourSuffix] = "ABBRHOUR";
        d_values[Hour] = decimal(hour);
    }
    else
    {
        d_values[HourSuffix] = hour < 13 ? "AM" : "PM";
        d_values[Hour] = decimal(hour < 13 ? hour : hour - 12);
    }
    refresh();
}

void MXClock::SetCurDayName(const String& name)
{
    d_values[DayName] = name;
    refresh();
}

void MXClock::SetHourAbbreviation(const String& abbreviation)
{
    d_hourAbbreviation = abbreviation;
    refresh();
}

String MXClock::GetWeekDayName(unsigned index) const
{
    return index < d_weekDayNames.size() ? d_weekDayNames[index] : String();
}

String MXClock::composeText() const
{
    String text;
    std::size_t placeholder = 0;
    for (const Piece& piece : d_format)
    {
        if (!piece.placeholder)
            text += piece.text;
        else if (placeholder < ShownCodes)
        {
            const unsigned code = d_codes[placeholder++];
            text += code == DayName ? String("ABBRDAYNAME") : d_values[code];
        }
    }
    if (text.empty())
        return text;
    replaceFirst(text, "ABBRDAYNAME", 11, d_values[DayName]);
    // 11, not 8: the three characters after the abbreviation's placeholder go with it.
    replaceFirst(text, "ABBRHOUR", 11, d_hourAbbreviation);
    return text;
}

void MXClock::refresh()
{
    const String text = composeText();
    if (!text.empty() && text != getText())
        setText(text);
}

} // namespace MoxieLook
} // namespace CEGUI
