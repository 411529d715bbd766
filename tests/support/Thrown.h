// What an action throws, as text: for tests that check an exception's exact message.
#pragma once

#include <CEGUI/Exceptions.h>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace moxietest
{
//! The message of the `E` that `action` throws (CEGUI's message for CEGUI's exceptions,
//! `what()` for others); a test failure and "" when it throws nothing.
template <typename E, typename Action>
std::string thrownMessage(Action action)
{
    try
    {
        action();
    }
    catch (const E& thrown)
    {
        if constexpr (std::is_base_of_v<CEGUI::Exception, E>)
            return thrown.getMessage().c_str();
        else
            return thrown.what();
    }
    ADD_FAILURE() << "nothing was thrown";
    return "";
}

} // namespace moxietest
