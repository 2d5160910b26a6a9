// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commandline.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersExactWordsOnly()
    {
        QCOMPARE(informationFor(u"--version"_s).value_or(QString()), u"Zephira 2.1.0\n"_s);
        QVERIFY(informationFor(u"--help"_s).value_or(QString()).startsWith(u"Usage: zephira "_s));
        for (const QString &other :
             {u""_s, u"--Help"_s, u"-h"_s, u"--help --version"_s, u" --help"_s, u"help"_s, u"/nodialog"_s})
            QVERIFY2(!informationFor(other), qPrintable(other));
    }

    void unknownOptions_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<bool>("fault");
        QTest::newRow("unknown") << u"--colour"_s << true;
        QTest::newRow("short") << u"-x"_s << true;
        QTest::newRow("known, with more") << u"--help --version"_s << true;
        QTest::newRow("file transfer") << u"--ftp"_s << false;
        QTest::newRow("a file") << u"-there.html"_s << false;
        QTest::newRow("a dash") << u"-"_s << false;
        QTest::newRow("nothing") << QString() << false;
        QTest::newRow("no dialog") << u"/nodialog"_s << false;
        QTest::newRow("a file that isn't there") << u"new.html"_s << false;
    }

    void unknownOptions()
    {
        QFETCH(QString, argument);
        const auto fault = optionFault(argument, [](const QString &name) { return name == u"-there.html"_s; });
        QTEST(fault.has_value(), "fault");
        if (fault) {
            QCOMPARE(*fault,
                     u"zephira: there is no option %1, and no such file\n"
                     "Try 'zephira --help' for more information.\n"_s.arg(argument));
        }
    }
};

ZEPHIRA_TEST(TstCommandLine)
#include "tst_commandline.moc"
