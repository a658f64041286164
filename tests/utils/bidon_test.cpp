#include <gtest/gtest.h>
TEST(Bidon, Rien) {}
