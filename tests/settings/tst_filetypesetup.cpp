// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/privateprofile.h"
#include "settings/filetypesetup.h"
#include "support/memoryfiletypes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

FileTypeSetup page()
{
    return {.extension = u"htm"_s,
            .description = u"HTML Document"_s,
            .icon = u"/app/zephira.ico"_s,
            .action = u"Edit with Zephira"_s,
            .command = u"/app/zephira %1"_s,
            .shellNew = {},
            .quickView = {}};
}

QStringList linesOf(const std::vector<ProfileEntry> &entries)
{
    QStringList lines;
    for (const auto &[section, key, value] : entries)
        lines.append(u"[%1] %2=%3"_s.arg(section, key, value));
    return lines;
}

} // namespace

class TstFileTypeSetup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAndValuesInTheirOrder()
    {
        MemoryFileTypes store;
        QVERIFY(CreateFileType(store, page()).ok());
        QCOMPARE(store.log,
                 (QStringList{u"create .htm"_s, u"create htmfile"_s, u"create htmfile\\DefaultIcon"_s,
                              u"create htmfile\\shell"_s, u"create htmfile\\shell\\Edit_with_Zephira"_s,
                              u"create htmfile\\shell\\Edit_with_Zephira\\command"_s, u"set .htm[] = htmfile"_s,
                              u"set htmfile[] = HTML Document"_s, u"set htmfile\\DefaultIcon[] = /app/zephira.ico"_s,
                              u"set htmfile\\shell[] = Edit_with_Zephira"_s,
                              u"set htmfile\\shell\\Edit_with_Zephira[] = &Edit with Zephira"_s,
                              u"set htmfile\\shell\\Edit_with_Zephira\\command[] = /app/zephira %1"_s}));
    }

    /// The visible label is the name itself behind "&"; only the key has "_".
    void blanksOfAnAction()
    {
        QCOMPARE(actionKey(u"Edit with Zephira"_s), u"Edit_with_Zephira"_s);
        QCOMPARE(actionKey(u"Edit with Zephira"_s).count(u'_'), 2);
        QCOMPARE(actionKey(u" a  b\t"_s), u"_a__b\t"_s);
        QCOMPARE(actionKey(u"Open"_s), u"Open"_s);
    }

    void flags_data()
    {
        QTest::addColumn<bool>("shellNew");
        QTest::addColumn<bool>("quickView");
        QTest::addColumn<QStringList>("last");
        QTest::newRow("as the categories")
            << false << true << QStringList{u"delete .htm\\ShellNew"_s, u"set htmfile\\QuickView[] = *"_s};
        QTest::newRow("as a custom type")
            << true << false << QStringList{u"set .htm\\ShellNew[NullFile] = "_s, u"delete htmfile\\QuickView"_s};
    }

    void flags()
    {
        QFETCH(bool, shellNew);
        QFETCH(bool, quickView);
        MemoryFileTypes store;
        for (const bool before : {false, true}) {
            // Whatever was there.
            if (before) {
                store.setValue(u".htm"_s, u"ShellNew"_s, u"NullFile"_s, {});
                store.setValue(u"htmfile"_s, u"QuickView"_s, {}, u"*"_s);
            }
            FileTypeSetup type = page();
            type.shellNew = shellNew;
            type.quickView = quickView;
            QVERIFY(CreateFileType(store, type).ok());
            QTEST(store.log.last(2), "last");
            QCOMPARE(store.keys.contains(u".htm\\ShellNew"_s), shellNew);
            QCOMPARE(store.keys.contains(u"htmfile\\QuickView"_s), quickView);
        }
    }

    void flagsThatAreNotPassed()
    {
        MemoryFileTypes store;
        store.setValue(u".htm"_s, u"ShellNew"_s, u"NullFile"_s, {});
        QVERIFY(CreateFileType(store, page()).ok());
        QVERIFY(store.keys.contains(u".htm\\ShellNew"_s));
        QVERIFY(!store.keys.contains(u"htmfile\\QuickView"_s));
    }

    /// What is saved is read before anything is written.
    void backup()
    {
        MemoryFileTypes store;
        store.setValue(u"htmfile\\shell\\Edit_with_Zephira"_s, u"command"_s, {}, u"old %1"_s);
        store.setValue(u"htmfile"_s, u"DefaultIcon"_s, {}, u"old.ico"_s);
        store.setValue(u"htmfile"_s, u"shell"_s, {}, u"view"_s);
        std::vector<ProfileEntry> saved;
        QVERIFY(CreateFileType(store, page(), &saved).ok());
        QCOMPARE(linesOf(saved),
                 (QStringList{u"[Reg] htmexe=old %1"_s, u"[Reg] htmico=old.ico"_s, u"[Reg] htmact=view"_s}));
    }

    /// The earlier values are those of the type key that the operation itself makes, not of the type that the extension
    /// pointed to.
    void backupIsThatOfTheTypeKey()
    {
        MemoryFileTypes store;
        store.setValue(u".htm"_s, {}, {}, u"browserpage"_s);
        store.setValue(u"browserpage"_s, u"DefaultIcon"_s, {}, u"browser.ico"_s);
        store.setValue(u"browserpage"_s, u"shell"_s, {}, u"view"_s);
        std::vector<ProfileEntry> saved;
        QVERIFY(CreateFileType(store, page(), &saved).ok());
        QCOMPARE(linesOf(saved), (QStringList{u"[Reg] htmexe="_s, u"[Reg] htmico="_s, u"[Reg] htmact="_s}));
        QCOMPARE(store.keys.readValue(u".htm"_s, {}, {}), u"htmfile"_s);
    }

    /// Giving back a type that nobody had opened before: its default action is empty.
    void emptyValues()
    {
        MemoryFileTypes store;
        QVERIFY(CreateFileType(store, page()).ok());
        FileTypeSetup none = page();
        none.icon = none.action = none.command = QString();
        QVERIFY(CreateFileType(store, none).ok());
        QCOMPARE(store.keys.readValue(u"htmfile"_s, u"shell"_s, {}), QString());
        QCOMPARE(store.keys.readValue(u"htmfile"_s, u"DefaultIcon"_s, {}), QString());
        QCOMPARE(store.keys.namesBelow(u"htmfile\\shell"_s), QStringList{u"Edit_with_Zephira"_s});
    }

    void extensions_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<bool>("isAllowed");
        QTest::newRow("usual") << u"htm"_s << true;
        QTest::newRow("upper case") << u"HTM"_s << true;
        QTest::newRow("with a dot inside") << u"tar.gz"_s << true;
        QTest::newRow("other letters") << u"\u00e9t\u00e9"_s << true;
        QTest::newRow("c++") << u"c++"_s << true;
        QTest::newRow("hundred") << QString(100, u'a') << true;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("too long") << QString(101, u'a') << false;
        QTest::newRow("slash") << u"a/b"_s << false;
        QTest::newRow("backslash") << u"a\\b"_s << false;
        QTest::newRow("with its dot") << u".htm"_s << false;
        QTest::newRow("wildcard") << u"*"_s << false;
        QTest::newRow("question mark") << u"ht?"_s << false;
        QTest::newRow("set") << u"[ch]"_s << false;
        QTest::newRow("blank") << u" "_s << false;
        QTest::newRow("blank at the end") << u"htm "_s << false;
        QTest::newRow("line end") << u"a\nb"_s << false;
        QTest::newRow("NUL") << u"a"_s + QChar::Null << false;
        QTest::newRow("half a character") << QString(QChar(0xD800)) << false;
    }

    void extensions()
    {
        QFETCH(QString, extension);
        QFETCH(bool, isAllowed);
        MemoryFileTypes store;
        FileTypeSetup type = page();
        type.extension = extension;
        std::vector<ProfileEntry> saved;
        const Result<void> created = CreateFileType(store, type, &saved);
        QCOMPARE(created.ok(), isAllowed);
        if (isAllowed)
            return;
        QCOMPARE(created.error().code, Error::Code::Refused);
        QCOMPARE(created.error().sentence,
                 u"\"%1\" can't be an extension. Please enter one without a period, such as htm."_s.arg(extension));
        QVERIFY(store.log.isEmpty());
        QVERIFY(saved.empty());
    }
};

ZEPHIRA_TEST(TstFileTypeSetup)
#include "tst_filetypesetup.moc"
