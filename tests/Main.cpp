// main() of the test programs: sets ICU's default locale.
#include <gtest/gtest.h>
#include <unicode/uloc.h>

// Collation and case mapping follow ICU's default locale, which would depend on the environment.
int main(int argc, char** argv) {
  UErrorCode status = U_ZERO_ERROR;
  uloc_setDefault("en_US", &status);
  testing::InitGoogleTest(&argc, argv);
  return U_FAILURE(status) ? 1 : RUN_ALL_TESTS();
}
