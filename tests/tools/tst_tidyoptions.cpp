// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "tools/tidyoptions.h"

#include <QStringList>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The settings as lines, in their order.
QStringList lines(const TidyChoices &choices)
{
    QStringList all;
    for (const auto &[name, value] : tidySettings(choices))
        all.append(QString::fromLatin1(name + '=' + value));
    return all;
}

/// The last value that is set for an option, which is the one that counts; null if it isn't set.
QString valueOf(const char *option, const TidyChoices &choices)
{
    QString value;
    for (const TidySetting &setting : tidySettings(choices)) {
        if (setting.name == option)
            value = QString::fromLatin1(setting.value);
    }
    return value;
}

} // namespace

class TstTidyOptions final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allBoxesOff()
    {
        QCOMPARE(lines({}),
                 (QStringList{u"input-encoding=utf8"_s,
                              u"output-encoding=ascii"_s,
                              u"doctype=auto"_s,
                              u"tidy-mark=yes"_s,
                              u"enclose-text=no"_s,
                              u"enclose-block-text=no"_s,
                              u"clean=no"_s,
                              u"logical-emphasis=no"_s,
                              u"drop-empty-paras=no"_s,
                              u"fix-bad-comments=no"_s,
                              u"fix-backslash=no"_s,
                              u"output-xml=no"_s,
                              u"output-xhtml=no"_s,
                              u"add-xml-decl=no"_s,
                              u"add-xml-space=no"_s,
                              u"numeric-entities=no"_s,
                              u"quote-marks=no"_s,
                              u"quote-nbsp=yes"_s,
                              u"quote-ampersand=no"_s,
                              u"indent-spaces=2"_s,
                              u"indent-attributes=no"_s,
                              u"wrap-attributes=no"_s,
                              u"wrap-asp=no"_s,
                              u"wrap-jste=no"_s,
                              u"wrap-php=no"_s,
                              u"uppercase-tags=yes"_s,
                              u"uppercase-attributes=yes"_s,
                              u"newline=CRLF"_s,
                              u"force-output=yes"_s,
                              u"show-errors=2147483647"_s,
                              u"show-warnings=yes"_s}));
    }

    void eachBox_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QStringList>("options");
        const auto row = [](const char *box, const QString &caption, const QStringList &options) {
            QTest::newRow(box) << caption << options;
        };
        row("Check1", u"Enclose Text in BODY within <P>'s"_s, {u"enclose-text"_s});
        row("Check2", u"Enclose Text in blocks within <P>'s"_s, {u"enclose-block-text"_s});
        row("Check8", u"Replace presentational tags and attrs by style rules"_s, {u"clean"_s});
        row("Check7", u"Discard <font> and <center> tags"_s, {});
        row("Check3", u"Replace <i> with <em> and <b> with <strong>"_s, {u"logical-emphasis"_s});
        row("Check4", u"Discard Empty Paragraphs"_s, {u"drop-empty-paras"_s});
        row("Check5", u"Fix Bad Comments"_s, {u"fix-bad-comments"_s});
        row("Check6", u"Replace '\\' in urls with '/'"_s, {u"fix-backslash"_s});
        row("Check9", u"Output as XML"_s, {u"output-xml"_s});
        row("Check10", u"Output as XHTML 1.0"_s, {u"output-xhtml"_s});
        row("Check11", u"Add XML Declaration"_s, {u"add-xml-decl"_s});
        row("Check12", u"Add xml:space as needed"_s, {u"add-xml-space"_s});
        row("Check13", u"Output Numeric character entities"_s, {u"numeric-entities"_s});
        row("Check14", u"Output \" as quot;"_s, {u"quote-marks"_s});
        row("Check15", u"Output non breaking spaces as entities"_s, {u"quote-nbsp"_s});
        row("Check16", u"Output unadorned chars as amp;"_s, {u"quote-ampersand"_s});
        row("Check17", u"Indent block tags"_s, {u"indent"_s, u"indent-attributes"_s});
        row("Check19", u"Wrap attr's."_s, {u"wrap-attributes"_s});
        row("Check18", u"Wrap lines which are in pseudo elements"_s, {u"wrap-asp"_s, u"wrap-jste"_s, u"wrap-php"_s});
    }

    void eachBox()
    {
        const QString box = QString::fromLatin1(QTest::currentDataTag());
        QFETCH(QStringList, options);
        const auto check = std::ranges::find(tidyChecks(), QStringView(box), &TidyCheck::control);
        QVERIFY(check != tidyChecks().end());
        QTEST(check->caption.toString(), "caption");
        // In latin1, because the output in ASCII needs one option in any case.
        const TidyChoices off{.charEncoding = u"latin1"_s};
        TidyChoices on = off;
        on.ticked.insert(box);
        QStringList changed;
        for (const TidySetting &setting : tidySettings(on)) {
            const QString name = QString::fromLatin1(setting.name);
            if (valueOf(setting.name, on) != valueOf(setting.name, off) && !changed.contains(name)) {
                changed.append(name);
                QCOMPARE(valueOf(setting.name, on), u"yes"_s);
            }
        }
        QCOMPARE(changed, options);
    }

    void everyBoxIsARow() { QCOMPARE(tidyChecks().size(), std::size_t{19}); }

    void choices()
    {
        QCOMPARE(tidyDocumentTypes(), (QStringList{u"auto"_s, u"omit"_s, u"strict"_s, u"loose"_s, u"<fpi>"_s}));
        QCOMPARE(tidyCharEncodings(), (QStringList{u"ascii"_s, u"raw"_s, u"iso2022"_s, u"latin1"_s, u"utf8"_s}));
    }

    void documentType_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QString>("value");
        QTest::newRow("strict") << u"strict"_s << u"strict"_s;
        QTest::newRow("left alone") << u"<fpi>"_s << QString();
        QTest::newRow("identifier") << u"-//W3C//DTD HTML 4.01//EN"_s << u"\"-//W3C//DTD HTML 4.01//EN\""_s;
        QTest::newRow("quoted identifier") << u" \"-//A//B\""_s << u"\"-//A//B\""_s;
    }

    void documentType()
    {
        QFETCH(QString, choice);
        QTEST(valueOf("doctype", {.documentType = choice}), "value");
    }

    void charEncoding_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("output");
        QTest::addColumn<bool>("bytes");
        QTest::newRow("ascii") << u"utf8"_s << u"ascii"_s << false;
        QTest::newRow("raw") << u"raw"_s << u"raw"_s << true;
        QTest::newRow("iso2022") << u"iso2022"_s << u"iso2022"_s << true;
        QTest::newRow("latin1") << u"utf8"_s << u"latin1"_s << false;
        QTest::newRow("utf8") << u"utf8"_s << u"utf8"_s << false;
    }

    void charEncoding()
    {
        const TidyChoices choices{.charEncoding = QString::fromLatin1(QTest::currentDataTag())};
        QTEST(valueOf("input-encoding", choices), "input");
        QTEST(valueOf("output-encoding", choices), "output");
        QTEST(countsBytes(choices.charEncoding), "bytes");
        QFETCH(bool, bytes);
        QCOMPARE(valueOf("preserve-entities", choices), bytes ? u"yes"_s : QString());
        QCOMPARE(valueOf("quote-nbsp", choices), choices.charEncoding == u"ascii" ? u"yes"_s : u"no"_s);
    }

    void xml()
    {
        QCOMPARE(valueOf("input-xml", {}), QString());
        QCOMPARE(valueOf("input-xml", {.isXml = true}), u"yes"_s);
    }

    void decoding()
    {
        QCOMPARE(decodeTidied("\xe4", u"latin1"_s), u"ä"_s);
        QCOMPARE(decodeTidied("\xc3\xa4", u"utf8"_s), u"ä"_s);
        QCOMPARE(decodeTidied("\xc3\xa4", u"raw"_s), u"ä"_s);
    }
};

ZEPHIRA_TEST(TstTidyOptions)

#include "tst_tidyoptions.moc"
