// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/languageregistry.h"
#include "syntax/styled.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zephira {

class TstLanguageRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builtInNames();
    void caseMakesNoDifference_data();
    void caseMakesNoDifference();
    void unknownNames();
    void registering();
    void registeringAgainReplaces();
    void theEmptyNameIsNoLanguage();
    void enginesAreMadeOnce();
    void anEngineOutlivesItsRegistration();
};

void TstLanguageRegistry::builtInNames()
{
    QCOMPARE(LanguageRegistry().names(),
             (QStringList{u"Basic"_s, u"C/C++"_s, u"HTML"_s, u"Java"_s, u"Pascal"_s, u"XML"_s}));
}

void TstLanguageRegistry::caseMakesNoDifference_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"HTML", "html", "C/C++", "c/c++", "java", "JAVA", "basic", "pAsCaL", "xml"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TstLanguageRegistry::caseMakesNoDifference()
{
    QFETCH(QString, name);
    const LanguageRegistry registry;
    QVERIFY(registry.find(name));
    QVERIFY(registry.engine(name));
    QCOMPARE(registry.find(name), registry.find(name.toUpper()));
}

void TstLanguageRegistry::unknownNames()
{
    const LanguageRegistry registry;
    for (const QString &name : {u"Perl"_s, u""_s, u"C++"_s, u"HTML "_s}) {
        QVERIFY(!registry.find(name));
        QVERIFY(!registry.engine(name));
    }
}

void TstLanguageRegistry::registering()
{
    LanguageRegistry registry;
    registry.RegisterLanguage(u"Perl"_s, perlLanguage());
    QVERIFY(registry.find(u"PERL"_s));
    QCOMPARE(*registry.find(u"PERL"_s), perlLanguage());
    QCOMPARE(byteLetters(*registry.engine(u"perl"_s), "my $x"), "22020");
    QVERIFY(registry.names().contains(u"Perl"_s));
}

void TstLanguageRegistry::registeringAgainReplaces()
{
    LanguageRegistry registry;
    QCOMPARE(byteLetters(*registry.engine(u"Java"_s), "class foo"), "222220000");
    CodeMaxLanguage other;
    other.Keywords = u"foo"_s;
    registry.RegisterLanguage(u"JAVA"_s, other);
    QCOMPARE(byteLetters(*registry.engine(u"Java"_s), "class foo"), "000000222");
    QCOMPARE(registry.names().size(), 6);
}

void TstLanguageRegistry::theEmptyNameIsNoLanguage()
{
    LanguageRegistry registry;
    registry.RegisterLanguage(QString(), perlLanguage());
    QVERIFY(!registry.find(QString()));
}

void TstLanguageRegistry::enginesAreMadeOnce()
{
    const LanguageRegistry registry;
    QCOMPARE(registry.engine(u"html"_s), registry.engine(u"HTML"_s));
}

void TstLanguageRegistry::anEngineOutlivesItsRegistration()
{
    LanguageRegistry registry;
    const auto engine = registry.engine(u"Basic"_s);
    registry.RegisterLanguage(u"Basic"_s, {});
    QCOMPARE(byteLetters(*engine, "Dim a"), "22200");
}

ZEPHIRA_TEST(TstLanguageRegistry)

} // namespace zephira

#include "tst_languageregistry.moc"
