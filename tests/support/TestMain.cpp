#include <gtest/gtest.h>

#include "support/TestLocale.h"

int main(int argc, char** argv)
{
  testing::InitGoogleTest(&argc, argv);
  return hullwright::test::UseTestLocale() ? RUN_ALL_TESTS() : 1;
}
