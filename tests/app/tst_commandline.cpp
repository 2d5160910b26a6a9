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
};

ZEPHIRA_TEST(TstCommandLine)
#include "tst_commandline.moc"
