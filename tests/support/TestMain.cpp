#include <QCoreApplication>

#include <gtest/gtest.h>

// ThreadSanitizer sees Qt free what its reference counts, which it doesn't see, have left to one
// thread alone. No code of ours runs in these functions.
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer looks for these names.
extern "C" const char* __tsan_default_suppressions();
extern "C" const char* __tsan_default_suppressions() {
    // NOLINTEND(bugprone-reserved-identifier)
    return "race:QVariant::~QVariant\n"
           "race:QtPrivate::QMetaTypeForType\n";
}

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
