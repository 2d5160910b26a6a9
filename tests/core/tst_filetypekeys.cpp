// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filetypekeys.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFileTypeKeys final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesOfKeys()
    {
        FileTypeKeys keys;
        QCOMPARE(keys.readValue(u".htm"_s, {}, {}), QString());
        keys.setValue(u".htm"_s, {}, {}, u"htmfile"_s);
        keys.setValue(u".htm"_s, u"ShellNew"_s, u"NullFile"_s, {});
        keys.setValue(u"htmfile\\shell\\Open"_s, u"command"_s, {}, u"/bin/a %1"_s);
        QCOMPARE(keys.readValue(u".htm"_s, {}, {}), u"htmfile"_s);
        QCOMPARE(keys.readValue(u"htmfile"_s, u"shell\\Open\\command"_s, {}), u"/bin/a %1"_s);
        QCOMPARE(keys.readValue(u".htm"_s, {}, u"other"_s), QString());
        keys.setValue(u".htm"_s, {}, {}, u"other"_s);
        QCOMPARE(keys.readValue(u".htm"_s, {}, {}), u"other"_s);
    }

    void namesInAnyCase()
    {
        FileTypeKeys keys;
        keys.setValue(u"txtfile"_s, u"Shell"_s, u"Name"_s, u"a"_s);
        QCOMPARE(keys.readValue(u"TXTFILE"_s, u"shell"_s, u"NAME"_s), u"a"_s);
        keys.setValue(u"TxtFile"_s, u"SHELL"_s, u"name"_s, u"b"_s);
        QCOMPARE(keys.readValue(u"txtfile"_s, u"Shell"_s, u"Name"_s), u"b"_s);
        QCOMPARE(keys.namesBelow(), QStringList{u"txtfile"_s});
        QCOMPARE(keys.namesBelow(u"TXTfile"_s), QStringList{u"Shell"_s});
    }

    void keysAboveAreMade()
    {
        FileTypeKeys keys;
        keys.createKey(u"a\\b"_s, u"c"_s);
        QVERIFY(keys.contains(u"a"_s));
        QVERIFY(keys.contains(u"a\\b"_s));
        QVERIFY(keys.contains(u"A\\B\\C"_s));
        QVERIFY(!keys.contains(u"b"_s));
        QCOMPARE(keys.namesBelow(u"a"_s), QStringList{u"b"_s});
    }

    void anEmptyPartIsNoKey()
    {
        FileTypeKeys keys;
        keys.setValue(u"a\\shell"_s, {}, {}, u"x"_s);
        const FileTypeKeys before = keys;
        keys.createKey({});
        keys.createKey(u"a\\shell\\"_s);
        keys.createKey(u"a\\shell\\"_s, u"command"_s);
        keys.setValue(u"a\\shell\\"_s, {}, {}, u"&"_s);
        keys.setValue(u"a\\shell\\"_s, u"command"_s, {}, u"y"_s);
        QVERIFY(keys == before);
        QCOMPARE(keys.readValue(u"a\\shell\\"_s, {}, {}), QString());
        QCOMPARE(keys.readValue(u"a\\shell\\"_s, u"command"_s, {}), QString());
    }

    void onlyAKeyWithoutOthersIsDeleted()
    {
        FileTypeKeys keys;
        keys.setValue(u".htm\\ShellNew"_s, {}, u"NullFile"_s, {});
        keys.deleteKey(u".htm"_s);
        QVERIFY(keys.contains(u".htm"_s));
        keys.deleteKey(u".HTM\\shellnew"_s);
        QVERIFY(!keys.contains(u".htm\\ShellNew"_s));
        keys.deleteKey(u".htm\\ShellNew"_s);
        keys.deleteKey(u".htm"_s);
        QVERIFY(keys == FileTypeKeys());
    }

    void aNulEndsAValue()
    {
        FileTypeKeys keys;
        keys.setValue(u"a"_s, {}, {}, u"one"_s + QChar::Null + u"two"_s);
        QCOMPARE(keys.readValue(u"a"_s, {}, {}), u"one"_s);
    }

    void textOfTheKeys()
    {
        FileTypeKeys keys;
        keys.setValue(u".htm"_s, {}, {}, u"htmfile"_s);
        keys.setValue(u"htmfile\\shell"_s, {}, u"a\"b\n\u00e9"_s, u"\u20ac\U0001F600"_s);
        keys.createKey(u"htmfile\\empty"_s);
        const Result<FileTypeKeys> again = FileTypeKeys::fromJson(keys.toJson());
        QVERIFY(again.ok());
        QVERIFY(again.value() == keys);
        QCOMPARE(FileTypeKeys().toJson(), "{\n}\n");
    }

    void damagedText_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("cut off") << QByteArray("{\".htm\": {");
        QTest::newRow("binary") << QByteArray("\x00\xff\xfe\x01", 4);
        QTest::newRow("array") << QByteArray("[]");
        QTest::newRow("key without values") << QByteArray(R"({".htm": "htmfile"})");
        QTest::newRow("number") << QByteArray(R"({".htm": {"": 1}})");
        QTest::newRow("key with an empty part") << QByteArray(R"({"a\\\\b": {}})");
    }

    void damagedText()
    {
        QFETCH(QByteArray, json);
        const Result<FileTypeKeys> keys = FileTypeKeys::fromJson(json);
        QVERIFY(!keys.ok());
        QCOMPARE(keys.error().code, Error::Code::Malformed);
    }
};

ZEPHIRA_TEST(TstFileTypeKeys)
#include "tst_filetypekeys.moc"
