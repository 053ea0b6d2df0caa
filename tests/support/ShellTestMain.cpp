#include <gtest/gtest.h>

#include "qt/Application.h"
#include "support/TestLocale.h"

/// The tests of the shell run in the program's own application.
int main(int argc, char** argv)
{
  testing::InitGoogleTest(&argc, argv);
  const hullwright::Application toolkit(argc, argv);
  return hullwright::test::UseTestLocale() ? RUN_ALL_TESTS() : 1;
}
