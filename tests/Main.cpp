// main() of the test programs: sets ICU's default locale and keeps the program's own arguments.
#include <gtest/gtest.h>
#include <unicode/uloc.h>

std::vector<std::string> programArguments;

// Collation and case mapping follow ICU's default locale, which would depend on the environment.
int main(int argc, char** argv) {
  UErrorCode status = U_ZERO_ERROR;
  uloc_setDefault("en_US", &status);
  testing::InitGoogleTest(&argc, argv);
  programArguments.assign(argv + 1, argv + argc);
  return U_FAILURE(status) ? 1 : RUN_ALL_TESTS();
}
