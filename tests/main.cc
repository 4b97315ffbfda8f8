#include <gtest/gtest.h>

#include "brisal/brisal.h"

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  BRSL_Init_Lib();
  return RUN_ALL_TESTS();
}
