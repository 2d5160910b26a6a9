// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/languagedefinition.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The keywords that the program registers for Perl, separated by bars.
constexpr const char *perlKeywords =
    "abs|if|accept|alarm|atan2|bind|binmode|bless|caller|chdir|chmod|chomp|chop|chown|chr|chroot|close|"
    "closedir|connect|cos|crypt|dbmclose|dbmopen|defined|delete|die |do|dump|each|eof|eval|exec|exists|"
    "exit|exp|fcntl|fileno|flock|fork|format|formline|getc|getlogin|getpeername|getpgrp|getppid|"
    "getpriority|getsockname|getsockopt|glob|gmtime|goto|grep|hex|import|index|int|ioctl|join|keys|kill|"
    "last|lc|lcfirst|length|link|listen|local|localtime|log|lstat|map|mkdir|msgctl|msgget|msgrcv|msgsnd|"
    "my|next|no|oct|open|opendir|ord|pack|package|pipe|pop|pos|print|printf|push|quotemeta|rand|read|"
    "readdir|readlink|recv|redo|ref|rename|require|reset|return|reverse|rewinddir|remdir|scalar|seek|"
    "seekdir|select|semctl|semget|semop|send|setpgrp|setpriority|setsockopt|shift|shmctl|shmget|shmread|"
    "shmwrite|shutdown|sin|sleep|socket|socketpair|sort|splice|split|sprintf|sqrt|srand|stat|study|"
    "substr|symlink|syscall|sysopen|sysread|sysseek|system|syswrite|tell|telldir|tie|tied|time|times|"
    "truncate|uc|ucfirst|umask|undef|unlink|unpack|unshift|utime|values|vec|wait|waitpid|wantarray|warn|"
    "write|$";

} // namespace

/// The definitions as data: Perl field by field, of the others the indispensable words.
class TstDefinitions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void perl();
    void perlHas166KeywordsAndTheDollarSign();
    void wordListsTakeAnyBlanks();
    void entryListsKeepBlanks();
    void entriesLeaveOutEmptyOnes();
    void listHolds_data();
    void listHolds();
    void noEntryStandsTwice_data();
    void noEntryStandsTwice();
    void tagAwareAreOnlyHtmlAndXml();
};

void TstDefinitions::perl()
{
    const CodeMaxLanguage perl = perlLanguage();
    QCOMPARE(perl.CaseSensitive, true);
    QCOMPARE(perl.Style, 0);
    QCOMPARE(perl.Keywords, QString::fromLatin1(perlKeywords).replace(u'|', u'\n'));
    QCOMPARE(perl.Operators, u"=\n>\n<\n/"_s);
    QCOMPARE(perl.SingleLineComments, u"# "_s);
    QCOMPARE(perl.MultiLineComments1, QString());
    QCOMPARE(perl.MultiLineComments2, QString());
    QCOMPARE(perl.ScopeKeywords1, u"{"_s);
    QCOMPARE(perl.ScopeKeywords2, u"}"_s);
    QCOMPARE(perl.StringDelims, u"\"\n'"_s);
    QCOMPARE(perl.EscapeChar, u"\\"_s);
    QCOMPARE(perl.TerminatorChar, u";"_s);
    QCOMPARE(perl.TagElementNames, QString());
    QCOMPARE(perl.TagAttributeNames, QString());
    QCOMPARE(perl.TagEntities, QString());
}

void TstDefinitions::perlHas166KeywordsAndTheDollarSign()
{
    const QStringList keywords = perlLanguage().Keywords.split(u'\n');
    QCOMPARE(keywords.size(), 167);
    QCOMPARE(keywords.first(), u"abs"_s);
    QCOMPARE(keywords.last(), u"$"_s);
    QVERIFY(keywords.contains(u"die "_s));
    QVERIFY(!keywords.contains(u"die"_s));
    QVERIFY(keywords.contains(u"remdir"_s));
    QVERIFY(!keywords.contains(u"rmdir"_s));
}

void TstDefinitions::wordListsTakeAnyBlanks()
{
    QCOMPARE(wordList(u"  a b\n\tc  "), u"a\nb\nc"_s);
    QCOMPARE(wordList(u""), QString());
}

void TstDefinitions::entryListsKeepBlanks()
{
    QCOMPARE(entryList(u"die |End Sub"), u"die \nEnd Sub"_s);
}

void TstDefinitions::entriesLeaveOutEmptyOnes()
{
    QCOMPARE(entriesOf(u"\na\n\nb \n\u00e9"_s), (QByteArrayList{"a", "b ", "\xc3\xa9"}));
    QCOMPARE(entriesOf(QString()), QByteArrayList());
}

void TstDefinitions::listHolds_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("words");

    const CodeMaxLanguage html = htmlDefinition().language;
    QTest::newRow("HTML elements")
        << html.TagElementNames
        << u"a body div h1 h6 marquee font frameset blink section dialog search svg script cf*"_s;
    QTest::newRow("HTML attributes") << html.TagAttributeNames
                                     << u"href src class style bgcolor http-equiv popover onclick data-* aria-* on*"_s;
    QTest::newRow("HTML entities") << html.TagEntities << u"nbsp amp lt gt quot apos eacute Eacute euro hellip check"_s;
    QTest::newRow("XML entities") << xmlDefinition().language.TagEntities << u"amp lt gt quot apos"_s;
    QTest::newRow("C++ keywords")
        << cppDefinition().language.Keywords
        << u"int class co_await concept constinit consteval requires char8_t #include #define vector"_s;
    QTest::newRow("Basic keywords") << basicDefinition().language.Keywords << u"Dim If Then MsgBox Option vbCrLf"_s;
    QTest::newRow("Pascal keywords") << pascalDefinition().language.Keywords
                                     << u"procedure unit uses var string Integer"_s;
    QTest::newRow("Java keywords") << javaDefinition().language.Keywords
                                   << u"sealed permits record yield when var function typeof async await @Override"_s;
    QTest::newRow("PHP keywords") << phpDefinition().language.Keywords << u"echo function match readonly enum $"_s;
}

void TstDefinitions::listHolds()
{
    QFETCH(QString, list);
    QFETCH(QString, words);
    const QStringList entries = list.split(u'\n');
    const QStringList all = words.split(u' ');
    for (const QString &word : all)
        QVERIFY2(entries.contains(word), qPrintable(word));
}

void TstDefinitions::noEntryStandsTwice_data()
{
    QTest::addColumn<QString>("list");
    QTest::newRow("HTML elements") << htmlDefinition().language.TagElementNames;
    QTest::newRow("HTML attributes") << htmlDefinition().language.TagAttributeNames;
    QTest::newRow("HTML entities") << htmlDefinition().language.TagEntities;
    QTest::newRow("C++") << cppDefinition().language.Keywords;
    QTest::newRow("Basic") << basicDefinition().language.Keywords;
    QTest::newRow("Pascal") << pascalDefinition().language.Keywords;
    QTest::newRow("PHP") << phpDefinition().language.Keywords;
    QTest::newRow("Perl") << perlLanguage().Keywords;
}

void TstDefinitions::noEntryStandsTwice()
{
    QFETCH(QString, list);
    QSet<QString> seen;
    const QStringList all = list.split(u'\n');
    for (const QString &entry : all) {
        QVERIFY2(!entry.isEmpty() && !seen.contains(entry), qPrintable(entry));
        seen.insert(entry);
    }
}

void TstDefinitions::tagAwareAreOnlyHtmlAndXml()
{
    QCOMPARE(htmlDefinition().language.Style, 1);
    QCOMPARE(xmlDefinition().language.Style, 1);
    for (const auto &definition : {cppDefinition(), basicDefinition(), pascalDefinition(), javaDefinition()})
        QCOMPARE(definition.language.Style, 0);
}

ZEPHIRA_TEST(TstDefinitions)

} // namespace zephira

#include "tst_definitions.moc"
