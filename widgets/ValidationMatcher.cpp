#include "widgets/ValidationMatcher.h"

#include <CEGUI/Exceptions.h>
#include <cstring>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace CEGUI
{
namespace MoxieLook
{
namespace
{
pcre2_code* codeOf(void* code)
{
    return static_cast<pcre2_code*>(code);
}
} // namespace

ValidationMatcher::~ValidationMatcher()
{
    pcre2_code_free(codeOf(d_code));
}

void ValidationMatcher::setRegexString(const String& regex)
{
    int error = 0;
    PCRE2_SIZE offset = 0;
    const char* pattern = regex.c_str();
    pcre2_code* compiled = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern),
                                         std::strlen(pattern), PCRE2_UTF, &error, &offset, nullptr);
    if (!compiled)
    {
        PCRE2_UCHAR message[256];
        pcre2_get_error_message(error, message, sizeof message);
        throw InvalidRequestException("The validation string '" + regex +
                                      "' is not a regular "
                                      "expression: " +
                                      String(reinterpret_cast<const char*>(message)) + ".");
    }
    pcre2_code_free(codeOf(d_code));
    d_code = compiled;
    d_regex = regex;
}

RegexMatcher::MatchState ValidationMatcher::getMatchStateOfString(const String& str) const
{
    if (!d_code)
        return MS_VALID;
    const char* subject = str.c_str();
    const PCRE2_SIZE length = std::strlen(subject);
    pcre2_match_data* match = pcre2_match_data_create_from_pattern(codeOf(d_code), nullptr);
    const int result = pcre2_match(codeOf(d_code), reinterpret_cast<PCRE2_SPTR>(subject), length, 0,
                                   PCRE2_ANCHORED | PCRE2_PARTIAL_SOFT, match, nullptr);
    MatchState state = MS_INVALID;
    if (result == PCRE2_ERROR_PARTIAL)
        state = MS_PARTIAL;
    else if (result >= 0)
    {
        // Only a match of the whole text is valid.
        const PCRE2_SIZE* span = pcre2_get_ovector_pointer(match);
        state = span[1] - span[0] == length ? MS_VALID : MS_INVALID;
    }
    pcre2_match_data_free(match);
    return state;
}

} // namespace MoxieLook
} // namespace CEGUI
