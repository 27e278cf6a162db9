#include "support/RunTests.h"

#include <gtest/gtest.h>

// Of the test programs that bring none of their own.

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    return ravelo::runTests(argc, argv);
}
