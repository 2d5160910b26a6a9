// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/templatename.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstTemplateName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
};

void TstTemplateName::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sentence"); // Of the refusal, or empty.
    const QString folder = u"A template's name can't contain a folder: "_s;
    const QString control = u"A template's name can't contain a line end, a tab or any other control character."_s;
    QTest::newRow("usual") << u"letter.html"_s << u""_s;
    QTest::newRow("without extension") << u"letter"_s << u""_s;
    QTest::newRow("blanks and other letters") << u" Brief – 2 €.html "_s << u""_s;
    QTest::newRow("three dots") << u"..."_s << u""_s;
    QTest::newRow("beyond the basic plane") << u"\U0001F600.html"_s << u""_s;
    QTest::newRow("empty") << u""_s << u"A template must have a name."_s;
    QTest::newRow("folder above") << u"../up.html"_s << folder + u"../up.html"_s;
    QTest::newRow("from the root") << u"/etc/x"_s << folder + u"/etc/x"_s;
    QTest::newRow("backslash") << u"a\\b"_s << folder + u"a\\b"_s;
    QTest::newRow("slash at the end") << u"a/"_s << folder + u"a/"_s;
    QTest::newRow("the folder itself") << u"."_s << folder + u"."_s;
    QTest::newRow("its parent") << u".."_s << folder + u".."_s;
    QTest::newRow("tab") << u"a\tb"_s << control;
    QTest::newRow("line end and a folder") << u"a/\nb"_s << control;
    QTest::newRow("NUL") << u"a"_s + QChar(u'\0') << control;
    QTest::newRow("delete") << u"a\u007F"_s << control;
    QTest::newRow("next line") << u"a\u0085"_s << control;
}

void TstTemplateName::names()
{
    QFETCH(QString, name);
    QFETCH(QString, sentence);
    const Result<void> checked = checkTemplateName(name);
    QCOMPARE(checked.ok(), sentence.isEmpty());
    if (!checked) {
        QCOMPARE(checked.error().sentence, sentence);
        QCOMPARE(checked.error().code, Error::Code::Refused);
    }
}

ZEPHIRA_TEST(TstTemplateName)

#include "tst_templatename.moc"
