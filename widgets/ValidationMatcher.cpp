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
    // Only a match of the whole text counts, with every branch tried against all of it
    // ("1.5" by \d+|\d+\.\d+). PCRE2 refuses end anchoring at match time with partial
    // matching; compiled in as ^(?:...)$, with $ at the very end only, it works with it.
    pcre2_compile_context* context = pcre2_compile_context_create(nullptr);
    pcre2_set_compile_extra_options(context, PCRE2_EXTRA_MATCH_LINE);
    pcre2_code* compiled =
        pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern), std::strlen(pattern),
                      PCRE2_UTF | PCRE2_DOLLAR_ENDONLY, &error, &offset, context);
    pcre2_compile_context_free(context);
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
    MatchState state = result >= 0                     ? MS_VALID
                       : result == PCRE2_ERROR_PARTIAL ? MS_PARTIAL
                                                       : MS_INVALID;
    // PCRE2 finds no partial match in nothing; an emptied box is still to be typed into.
    if (state == MS_INVALID && length == 0)
        state = MS_PARTIAL;
    pcre2_match_data_free(match);
    return state;
}

} // namespace MoxieLook
} // namespace CEGUI
