// A test that starts on a fresh, empty sheet.
#pragma once

#include "support/Gui.h"

#include <gtest/gtest.h>

namespace moxietest
{
class SheetTest : public ::testing::Test
{
protected:
    void SetUp() override { freshSheet(); }
};

} // namespace moxietest
