#include "platform/linux/LinuxSystemFacts.h"

#include "support/Printers.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

#include <sys/utsname.h>

namespace tessarine {
namespace {

using namespace Qt::StringLiterals;

struct Description {
    const char* name;
    QByteArray text;
    QString pretty;
};

class PrettyName : public ::testing::TestWithParam<Description> {};

TEST_P(PrettyName, IsReadAsAShellWouldReadIt) {
    EXPECT_EQ(prettyName(GetParam().text), GetParam().pretty);
}

INSTANTIATE_TEST_SUITE_P(
    Descriptions, PrettyName,
    ::testing::Values(
        Description{"InQuotes", "NAME=\"Debian\"\nPRETTY_NAME=\"Debian GNU/Linux 12\"\nID=debian\n",
                    u"Debian GNU/Linux 12"_qs},
        Description{"Bare", "PRETTY_NAME=Void", u"Void"_qs},
        Description{"InSingleQuotes", "PRETTY_NAME='Arch \\Linux'\n", u"Arch \\Linux"_qs},
        Description{"WithEscapes", R"(PRETTY_NAME="A \"quoted\" \$name \\ \`x\`")",
                    uR"(A "quoted" $name \ `x`)"_qs},
        Description{"NotOfAnotherKey", "OLD_PRETTY_NAME=\"No\"\n#PRETTY_NAME=\"No\"\n", QString()},
        Description{"TheLastOfTwo", "PRETTY_NAME=one\nPRETTY_NAME=two\n", u"two"_qs},
        Description{"InUtf8", "PRETTY_NAME=\"Größe\"\r\n", u"Größe"_qs},
        Description{"OnOneLine", "PRETTY_NAME=\"a\tb \"", u"a b"_qs},
        Description{"Missing", "NAME=x\n", QString()}, Description{"Empty", "", QString()}),
    [](const auto& test) { return std::string(test.param.name); });

QString kernel() {
    utsname names{};
    uname(&names);
    return QString::fromLocal8Bit(names.release);
}

class LinuxSystemFactsTest : public ::testing::Test {
protected:
    QString written(const QString& name, const QByteArray& text) const {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    QString missing() const { return folder_.filePath(u"missing"_qs); }

private:
    QTemporaryDir folder_;
};

TEST_F(LinuxSystemFactsTest, NamesTheDistributionAndTheKernel) {
    const LinuxSystemFacts facts({written(u"one"_qs, "PRETTY_NAME=\"Example 7\"\n")});
    EXPECT_EQ(facts.systemLabel(), u"System"_qs);
    EXPECT_EQ(facts.systemVersion(), u"Example 7 (Linux %1)"_qs.arg(kernel()));
}

TEST_F(LinuxSystemFactsTest, TakesTheFirstDescriptionThatIsThere) {
    const QString first = written(u"first"_qs, "PRETTY_NAME=First\n");
    const QString second = written(u"second"_qs, "PRETTY_NAME=Second\n");
    EXPECT_TRUE(
        LinuxSystemFacts({missing(), second, first}).systemVersion().startsWith(u"Second ("_qs));
}

TEST_F(LinuxSystemFactsTest, IsNeverEmpty) {
    const LinuxSystemFacts facts({missing()});
    EXPECT_EQ(facts.systemVersion(), u"Linux (Linux %1)"_qs.arg(kernel()));
    EXPECT_FALSE(facts.programVersion().isEmpty());
    EXPECT_FALSE(facts.programBuild().isEmpty());
}

} // namespace
} // namespace tessarine
