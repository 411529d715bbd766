#include "support/Gui.h"

#include <gtest/gtest.h>

namespace
{
class GuiEnvironment : public ::testing::Environment
{
public:
    void SetUp() override { moxietest::startGui(); }
    void TearDown() override { moxietest::stopGui(); }
};
} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::AddGlobalTestEnvironment(new GuiEnvironment);
    return RUN_ALL_TESTS();
}
