// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "syntax/symboltable.h"
#include "syntax/wordtable.h"

#include <QTest>

namespace zephira {

/// The two tables in which tokens are looked up.
class TstWordTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyTableFindsNothing();
    void words();
    void wordsWithoutRegardToCase();
    void theFirstValueStays();
    void mergingAddsBits();
    void manyWords();
    void theLongestSymbolIsFound();
    void symbolsKeepToWords();
    void plainOperators();
};

namespace {

constexpr std::array<bool, 256> letters = [] {
    std::array<bool, 256> table{};
    for (std::size_t letter = 'a'; letter <= 'z'; ++letter)
        table[letter] = table[letter - 32] = true;
    return table;
}();

/// The symbol at the start of a text; empty if there is none.
QByteArray foundAt(const SymbolTable &table, QByteArrayView text)
{
    const auto *p = reinterpret_cast<const Byte *>(text.data());
    const Symbol *symbol = table.find(p, p + text.size());
    return symbol ? symbol->bytes : QByteArray();
}

} // namespace

void TstWordTables::anEmptyTableFindsNothing()
{
    QCOMPARE(WordTable().find("a"), 0);
    QCOMPARE(WordTable().find(""), 0);
    QVERIFY(WordTable().isEmpty());
}

void TstWordTables::words()
{
    WordTable table;
    table.add("if", 2);
    table.add("\xc3\xa9t\xc3\xa9", 3);
    QCOMPARE(table.find("if"), 2);
    QCOMPARE(table.find("IF"), 0);
    QCOMPARE(table.find("i"), 0);
    QCOMPARE(table.find("iff"), 0);
    QCOMPARE(table.find("\xc3\xa9t\xc3\xa9"), 3);
}

void TstWordTables::wordsWithoutRegardToCase()
{
    WordTable table(false);
    table.add("MsgBox", 2);
    QCOMPARE(table.find("msgbox"), 2);
    QCOMPARE(table.find("MSGBOX"), 2);
    // Only letters have a case: "@" and "`" differ by the same bit.
    table.add("@a", 3);
    QCOMPARE(table.find("`a"), 0);
    QCOMPARE(table.find("@A"), 3);
}

void TstWordTables::theFirstValueStays()
{
    WordTable table;
    table.add("a", 1);
    table.add("a", 2);
    QCOMPARE(table.find("a"), 1);
}

void TstWordTables::mergingAddsBits()
{
    WordTable table;
    table.add("a", 1);
    table.merge("a", 4);
    table.merge("b", 4);
    QCOMPARE(table.find("a"), 5);
    QCOMPARE(table.find("b"), 4);
}

void TstWordTables::manyWords()
{
    WordTable table;
    for (int i = 0; i < 100000; ++i)
        table.add("word" + QByteArray::number(i), static_cast<unsigned char>(i % 255 + 1));
    for (int i = 0; i < 100000; ++i)
        QCOMPARE(table.find("word" + QByteArray::number(i)), i % 255 + 1);
    QCOMPARE(table.find("word100000"), 0);
}

void TstWordTables::theLongestSymbolIsFound()
{
    SymbolTable table(true);
    for (const char *symbol : {"<", "<!--", "<!", "=", ""})
        table.add({symbol, TokenKind::Operator});
    table.finish(letters);
    QCOMPARE(foundAt(table, "<!--x"), "<!--");
    QCOMPARE(foundAt(table, "<!-"), "<!");
    QCOMPARE(foundAt(table, "<"), "<");
    QCOMPARE(foundAt(table, "x"), "");
}

void TstWordTables::symbolsKeepToWords()
{
    SymbolTable table(false);
    table.add({"End Sub", TokenKind::Scope});
    table.add({"die ", TokenKind::Keyword});
    table.finish(letters);
    QCOMPARE(foundAt(table, "end SUB:"), "end sub");
    QCOMPARE(foundAt(table, "End Sub"), "end sub");
    QCOMPARE(foundAt(table, "End Subs"), "");
    QCOMPARE(foundAt(table, "Die x"), "die ");
    QCOMPARE(foundAt(table, "die;"), "");
    QCOMPARE(table.symbols().front().styledSize(), std::size_t{3});
}

void TstWordTables::plainOperators()
{
    SymbolTable table(true);
    for (const char *symbol : {"+", "-", "->"})
        table.add({symbol, TokenKind::Operator});
    table.add({"{", TokenKind::Scope});
    table.finish(letters);
    QVERIFY(table.isPlainOperator('+'));
    QVERIFY(!table.isPlainOperator('-'));
    QVERIFY(!table.isPlainOperator('{'));
    QVERIFY(!table.isPlainOperator('x'));
    QVERIFY(table.startsWith('-'));
    QVERIFY(!table.startsWith('>'));
}

ZEPHIRA_TEST(TstWordTables)

} // namespace zephira

#include "tst_wordtables.moc"
