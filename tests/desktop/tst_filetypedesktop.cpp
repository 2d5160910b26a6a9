// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filetypekeys.h"
#include "desktop/filetypedesktop.h"
#include "support/testregistry.h"

#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A type with one action.
void put(FileTypeKeys &keys, const QString &extension, const QString &action, const QString &command,
         const QString &defaultAction)
{
    const QString typeKey = extension + u"file"_s;
    keys.setValue(u'.' + extension, {}, {}, typeKey);
    keys.setValue(typeKey, {}, {}, extension.toUpper() + u" file"_s);
    keys.setValue(typeKey, u"shell"_s, {}, defaultAction);
    keys.setValue(typeKey + u"\\shell\\"_s + action, u"command"_s, {}, command);
}

QStringList types(const QString &extension)
{
    static const QHash<QString, QStringList> known{
        {u"htm"_s, {u"text/html"_s}}, {u"html"_s, {u"text/html"_s}}, {u"xml"_s, {u"application/xml"_s, u"text/xml"_s}}};
    return known.value(extension, {ownMimeType(extension)});
}

} // namespace

class TstFileTypeDesktop final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typesOfTheKeys_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("defaultAction");
        QTest::addColumn<bool>("isNew");
        QTest::addColumn<QString>("meaning");
        const QString ours = u"/a b/zephira %1"_s;
        QTest::newRow("bound") << ours << u"Open"_s << false << u"default"_s;
        QTest::newRow("bound, in another case") << ours << u"OPEN"_s << false << u"default"_s;
        QTest::newRow("custom, default") << ours << u"Open"_s << true << u"default"_s;
        QTest::newRow("another default") << ours << u"opennew"_s << false << u"listed"_s;
        QTest::newRow("given back") << ours << QString() << false << u"nothing"_s;
        QTest::newRow("custom, no default") << ours << QString() << true << u"listed"_s;
        QTest::newRow("another program") << u"/bin/notes %1"_s << u"Open"_s << false << u"nothing"_s;
        QTest::newRow("a program of a similar name") << u"/bin/azephira %1"_s << u"Open"_s << false << u"nothing"_s;
        QTest::newRow("no command") << QString() << u"Open"_s << true << u"nothing"_s;
        QTest::newRow("other arguments") << u"/bin/zephira -x %1"_s << u"Open"_s << false << u"nothing"_s;
        QTest::newRow("no argument") << u"/bin/zephira"_s << u"Open"_s << false << u"nothing"_s;
    }

    void typesOfTheKeys()
    {
        QFETCH(QString, command);
        QFETCH(QString, defaultAction);
        QFETCH(bool, isNew);
        FileTypeKeys keys;
        put(keys, u"log"_s, u"Open"_s, command, defaultAction);
        if (isNew)
            keys.setValue(u".log"_s, u"ShellNew"_s, u"NullFile"_s, {});
        const std::vector<DesktopFileType> found = desktopFileTypes(keys, u"zephira"_s);
        QString meaning = u"nothing"_s;
        if (!found.empty()) {
            QCOMPARE(found.size(), std::size_t{1});
            QCOMPARE(found[0].extension, u"log"_s);
            QCOMPARE(found[0].description, u"LOG file"_s);
            meaning = found[0].isDefault ? u"default"_s : u"listed"_s;
        }
        QTEST(meaning, "meaning");
    }

    void keysThatNameNoType()
    {
        FileTypeKeys keys;
        put(keys, u"log"_s, u"Open"_s, u"/bin/zephira %1"_s, u"Open"_s);
        keys.setValue(u".log"_s, {}, {}, {});
        keys.setValue(u".bad"_s, {}, {}, u"gone"_s);
        QVERIFY(desktopFileTypes(keys, u"zephira"_s).empty());
    }

    void namesOfOurOwnTypes_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("name");
        QTest::newRow("usual") << u"frm"_s << u"application/x-zephira-frm"_s;
        QTest::newRow("upper case") << u"FRM"_s << u"application/x-zephira-frm"_s;
        QTest::newRow("signs") << u"c++"_s << u"application/x-zephira-c-2b-2b"_s;
        QTest::newRow("no clash with signs") << u"c-2b"_s << u"application/x-zephira-c-2d2b"_s;
        QTest::newRow("other letters") << u"\u00e9"_s << u"application/x-zephira--c3-a9"_s;
    }

    void namesOfOurOwnTypes()
    {
        QFETCH(QString, extension);
        QTEST(ownMimeType(extension), "name");
    }

    void theSystemsTypes()
    {
        QCOMPARE(systemMimeTypes(u"txt"_s), QStringList{u"text/plain"_s});
        QCOMPARE(systemMimeTypes(u"html"_s), QStringList{u"text/html"_s});
        QCOMPARE(systemMimeTypes(u"htm"_s), QStringList{u"text/html"_s});
        QVERIFY(systemMimeTypes(u"xml"_s).contains(u"text/xml"_s));
        QCOMPARE(systemMimeTypes(u"qqzz"_s), QStringList{u"application/x-zephira-qqzz"_s});
    }

    /// Extensions that share a type share its default program.
    void whatTheDesktopIsTold()
    {
        const DesktopFileType htm{u"htm"_s, {}, true};
        const DesktopFileType html{u"html"_s, {}, false};
        const DesktopFileType xml{u"xml"_s, {}, true};
        QVERIFY(desktopTypes({}, types) == DesktopTypes());
        QVERIFY(desktopTypes({htm}, types) == (DesktopTypes{{u"text/html"_s}, {u"text/html"_s}}));
        for (const std::vector<DesktopFileType> &both : {std::vector{htm, html}, std::vector{html, htm}})
            QVERIFY(desktopTypes(both, types) == (DesktopTypes{{}, {u"text/html"_s}}));
        const DesktopTypes all = desktopTypes({htm, html, xml, {u"frm"_s, {}, true}}, types);
        QCOMPARE(all.all,
                 (QStringList{u"application/x-zephira-frm"_s, u"application/xml"_s, u"text/html"_s, u"text/xml"_s}));
        QCOMPARE(all.defaults, (QStringList{u"application/x-zephira-frm"_s, u"application/xml"_s, u"text/xml"_s}));
    }

    void packageOfOurOwnTypes()
    {
        QCOMPARE(mimePackage({{u"htm"_s, u"Page"_s, true}}, types), QByteArray());
        QCOMPARE(mimePackage({{u"htm"_s, u"Page"_s, true}, {u"FRM"_s, u"A <form> & \x01more"_s, true}}, types),
                 "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                 "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
                 "  <mime-type type=\"application/x-zephira-frm\">\n"
                 "    <comment>A &lt;form&gt; &amp; more</comment>\n"
                 "    <sub-class-of type=\"text/plain\"/>\n"
                 "    <glob pattern=\"*.frm\"/>\n"
                 "  </mime-type>\n"
                 "</mime-info>\n");
    }

    /// Whatever the user calls a type, the package is XML.
    void descriptionsThatXmlHasNoRoomFor()
    {
        for (const QString &description :
             {QString(), u"]]>"_s, QString(QChar(0xFFFE)), QString(QChar(0xD800)), u"\"'\x7f\x1b"_s}) {
            QXmlStreamReader xml(mimePackage({{u"a&b"_s, description, true}}, types));
            while (!xml.atEnd())
                xml.readNext();
            QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        }
    }

    void entry()
    {
        QCOMPARE(desktopEntry({}, u"/bin/zephira"_s, u"/i.ico"_s), QByteArray());
        const DesktopTypes both{{}, {u"text/html"_s, u"text/xml"_s}};
        const QByteArray text = desktopEntry(both, u"/opt/zephira/zephira"_s, u"/opt/zephira/zephira.ico"_s);
        QVERIFY(text.startsWith("[Desktop Entry]\nType=Application\n"));
        QVERIFY(text.contains("\nExec=/opt/zephira/zephira %f\n"));
        QVERIFY(text.contains("\nIcon=/opt/zephira/zephira.ico\n"));
        QVERIFY(text.contains("\nNoDisplay=true\n"));
        QVERIFY(text.endsWith("\nMimeType=text/html;text/xml;\n"));
    }

    void programsInOddPlaces_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("usual") << u"/opt/a-b_c.d+1/zephira"_s << QByteArray("/opt/a-b_c.d+1/zephira");
        QTest::newRow("blank") << u"/my files/zephira"_s << QByteArray("\"/my files/zephira\"");
        QTest::newRow("percent") << u"/100%f/zephira"_s << QByteArray("\"/100%%f/zephira\"");
        QTest::newRow("quote") << u"/a\"b/zephira"_s << QByteArray("\"/a\\\\\"b/zephira\"");
        QTest::newRow("dollar") << u"/a$b/zephira"_s << QByteArray("\"/a\\\\$b/zephira\"");
        QTest::newRow("backslash") << u"/a\\b/zephira"_s << QByteArray("\"/a\\\\\\\\b/zephira\"");
    }

    void programsInOddPlaces()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, line);
        const QByteArray text = desktopEntry({{}, {u"a/b"_s}}, program, {});
        QVERIFY2(text.contains("\nExec=" + line + " %f\n"), text.constData());
    }
};

ZEPHIRA_TEST(TstFileTypeDesktop)
#include "tst_filetypedesktop.moc"
