#include <gtest/gtest.h>

#include <QApplication>

#include "support/TestLocale.h"

/// Test programs of the shell have the toolkit for their whole run.
int main(int argc, char** argv)
{
  testing::InitGoogleTest(&argc, argv);
  const QApplication toolkit(argc, argv);
  return hullwright::test::UseTestLocale() ? RUN_ALL_TESTS() : 1;
}
