// Where the help is looked for.

#include "shell/help_window.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace folioscope {
namespace {

class HelpFileTest : public testing::Test {
protected:
    QString Put(const QString& path)
    {
        const QString whole = QDir(folder_.path()).canonicalPath() + '/' + path;
        QDir().mkpath(whole.left(whole.lastIndexOf('/')));
        QFile file(whole);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return whole;
    }
    QString Found(Language language) const { return HelpFile(language, folder_.path() + "/bin"); }

private:
    QTemporaryDir folder_;
};

TEST_F(HelpFileTest, IsFoundUnderThePrefixOfTheProgram)
{
    Put("bin/fsv");
    const QString file = Put("share/folioscope/help/help.en.html");
    EXPECT_EQ(Found(Language::English), file);
}

TEST_F(HelpFileTest, IsFoundBesideTheProgramFirst)
{
    Put("share/folioscope/help/help.fr.html");
    const QString beside = Put("bin/help/help.fr.html");
    EXPECT_EQ(Found(Language::French), beside);
}

TEST_F(HelpFileTest, IsThatOfTheLanguage)
{
    Put("bin/help/help.en.html");
    const QString german = Put("share/folioscope/help/help.de.html");
    EXPECT_EQ(Found(Language::German), german);
}

TEST_F(HelpFileTest, IsEmptyWithoutAFile)
{
    EXPECT_EQ(Found(Language::English), QString());
    Put("bin/help/help.en.html/inside");  // a folder of that name is none
    EXPECT_EQ(Found(Language::English), QString());
}

}  // namespace
}  // namespace folioscope
