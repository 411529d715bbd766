// A regular-expression matcher for edit boxes, on PCRE2. Debian's CEGUI is built without
// one, and then an edit box refuses every validation string; the module's edit boxes
// install this one instead. Partial matches tell a text still being typed from a wrong one.
#pragma once

#include <CEGUI/RegexMatcher.h>
#include <CEGUI/String.h>

namespace CEGUI
{
namespace MoxieLook
{
class ValidationMatcher : public RegexMatcher
{
public:
    ValidationMatcher() = default;
    ~ValidationMatcher() override;
    ValidationMatcher(const ValidationMatcher&) = delete;
    ValidationMatcher& operator=(const ValidationMatcher&) = delete;

    //! CEGUI's InvalidRequestException for an expression PCRE2 cannot compile.
    void setRegexString(const String& regex) override;
    const String& getRegexString() const override { return d_regex; }
    //! The whole text matches (valid), could still grow into a match or is empty
    //! (partial), or neither (invalid). With no expression set, every text is valid; an
    //! empty expression, like any other, has to match the whole text.
    MatchState getMatchStateOfString(const String& str) const override;

private:
    String d_regex;
    void* d_code = nullptr; //!< pcre2_code_8*
};

} // namespace MoxieLook
} // namespace CEGUI
