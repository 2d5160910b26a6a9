// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

QByteArray utf16(const QString &text, bool bigEndian)
{
    QByteArray bytes;
    for (const QChar c : u"\ufeff"_s + text) {
        const char high = static_cast<char>(c.unicode() >> 8);
        const char low = static_cast<char>(c.unicode() & 0xff);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

const QString path = u"/folder/page.html"_s;

} // namespace

class TstCodeMaxFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("edited");
        QTest::newRow("CR LF") << "a\r\nb\r\n"_ba << u"a\r\nb\r\n"_s << "é\r\na\r\nb\r\n"_ba;
        QTest::newRow("LF") << "a\nb"_ba << u"a\r\nb"_s << "é\na\nb"_ba;
        QTest::newRow("CR") << "a\rb\r"_ba << u"a\r\nb\r\n"_s << "é\ra\rb\r"_ba;
        QTest::newRow("mixed, mostly LF") << "a\nb\r\nc\n\rd\n"_ba << u"a\nb\r\nc\n\rd\n"_s << "é\na\nb\r\nc\n\rd\n"_ba;
        QTest::newRow("empty") << QByteArray() << QString() << "é\r\n"_ba;
        QTest::newRow("one line") << "one"_ba << u"one"_s << "é\r\none"_ba;
        QTest::newRow("UTF-8 with mark") << "\xef\xbb\xbf"
                                            "ä\n"_ba
                                         << u"ä\r\n"_s
                                         << "\xef\xbb\xbf"
                                            "é\nä\n"_ba;
        QTest::newRow("Windows-1252") << "\xe4 \x80\x81\r\n"_ba << u"ä €\u0081\r\n"_s << "\xe9\r\n\xe4 \x80\x81\r\n"_ba;
        QTest::newRow("UTF-16 LE") << utf16(u"aß\n"_s, false) << u"aß\r\n"_s << utf16(u"é\naß\n"_s, false);
        QTest::newRow("UTF-16 BE") << utf16(u"\U0001f600\r\n"_s, true) << u"\U0001f600\r\n"_s
                                   << utf16(u"é\r\n\U0001f600\r\n"_s, true);
        QTest::newRow("NUL") << QByteArray("a\0b\n", 4) << QString::fromUtf16(u"a\0b\r\n", 5)
                             << "é\n"_ba + QByteArray("a\0b\n", 4);
    }
    /// An unmodified file is saved byte for byte as it was; in a modified one a typed line gets the file's own line
    /// end.
    void formats()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QFETCH(QByteArray, edited);
        EditorFixture f;
        f.show();
        f.files.contents[path] = bytes;
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        QVERIFY(f.editor.OpenFile(path));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(f.editor.text(), text);
        QCOMPARE(f.editor.textLength(), text.size());
        QCOMPARE(f.editor.selection(false), CodeMaxRange());
        QVERIFY(!f.editor.canUndo());
        QVERIFY(f.editor.SaveFile(u"/copy"_s, false));
        QCOMPARE(f.files.contents[u"/copy"_s], bytes);

        f.type(u"é"_s);
        QTest::keyClick(&f.editor, Qt::Key_Return);
        QVERIFY(f.editor.SaveFile(path, false));
        QCOMPARE(f.files.contents[path], edited);
        f.editor.executeCmd(EditorCommand::SelectAll);
        QCOMPARE(f.editor.selText(), f.editor.text());
        QCOMPARE(f.editor.selLength(), f.editor.textLength());
    }

    void writingTheWholeTextKeepsTheFormat()
    {
        EditorFixture f;
        f.files.contents[path] = "\xef\xbb\xbf"
                                 "a\n";
        QVERIFY(f.editor.OpenFile(path));
        f.editor.setText(u"x\r\ny\r\n"_s);
        QVERIFY(f.editor.SaveFile(path, false));
        QCOMPARE(f.files.contents[path],
                 "\xef\xbb\xbf"
                 "x\ny\n"_ba);
    }

    /// The window starts a new document by emptying the text.
    void anEmptiedTextIsANewDocument()
    {
        EditorFixture f;
        f.files.contents[path] = "\xe4\nb";
        QVERIFY(f.editor.OpenFile(path));
        f.editor.setText(QString());
        f.editor.setSelText(u"α\r\nβ"_s);
        QVERIFY(f.editor.SaveFile(u"/new"_s, true));
        QCOMPARE(f.files.contents[u"/new"_s], "α\r\nβ"_ba);
    }

    void undoingTheEmptyingBringsTheFormatBack()
    {
        EditorFixture f;
        f.files.contents[path] = "\xe4\nb";
        QVERIFY(f.editor.OpenFile(path));
        f.editor.setText(QString());
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"ä\r\nb"_s);
        QVERIFY(f.editor.SaveFile(path, false));
        QCOMPARE(f.files.contents[path], "\xe4\nb"_ba);
        f.editor.redo();
        QCOMPARE(f.editor.textFormat(), TextFormat());
    }

    void aFailingOpenLeavesTheText()
    {
        EditorFixture f;
        f.editor.setText(u"mine"_s);
        QSignalSpy changes(&f.editor, &CodeMax::Change);
        QVERIFY(!f.editor.OpenFile(u"/none"_s));
        QVERIFY(!f.editor.lastError().isEmpty());
        QCOMPARE(f.editor.text(), u"mine"_s);
        QVERIFY(f.editor.canUndo());
        QCOMPARE(changes.count(), 0);
    }

    void aFailingSaveSaysSo()
    {
        EditorFixture f;
        f.files.contents[path] = "old";
        QVERIFY(f.editor.OpenFile(path));
        f.editor.setText(u"new"_s);
        f.files.unwritable[path] = {Error::Code::Unwritable, u"The disk is full."_s};
        QVERIFY(!f.editor.SaveFile(path, true));
        QCOMPARE(f.editor.lastError(), u"The disk is full."_s);
        QCOMPARE(f.files.contents[path], "old"_ba);
        QVERIFY(f.editor.canUndo());
        f.files.unwritable.clear();
        QVERIFY(f.editor.SaveFile(path, false));
        QCOMPARE(f.editor.lastError(), QString());
    }

    void savingClearsTheHistoryOnlyWhenAsked()
    {
        EditorFixture f;
        f.editor.setText(u"a"_s);
        QVERIFY(f.editor.SaveFile(path, false));
        QVERIFY(f.editor.canUndo());
        QVERIFY(f.editor.SaveFile(path, true));
        QVERIFY(!f.editor.canUndo());
        QVERIFY(!f.editor.canRedo());
        QCOMPARE(f.editor.text(), u"a"_s);
    }

    void whatTheEncodingCannotHoldIsAskedAbout_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("Yes") << Answer::Yes << "äα\r\n"_ba;
        QTest::newRow("No") << Answer::No << "\xe4\r\n"_ba;
    }
    void whatTheEncodingCannotHoldIsAskedAbout()
    {
        QFETCH(Answer, answer);
        QFETCH(QByteArray, written);
        EditorFixture f;
        f.files.contents[path] = "\xe4\r\n";
        QVERIFY(f.editor.OpenFile(path));
        f.editor.select({0, 1, 0, 1});
        f.editor.setSelText(u"α"_s);
        const Result<QByteArray> encoded = encodeText("äα\r\n", f.editor.textFormat());
        QVERIFY(!encoded);
        f.prompts.expect({encoded.error().sentence + u"\n\nSave \"page.html\" as UTF-8 instead?"_s,
                          {},
                          Question::Icon::Exclamation,
                          Question::Buttons::YesNo},
                         answer);
        QCOMPARE(f.editor.SaveFile(path, false), answer == Answer::Yes);
        QCOMPARE(f.files.contents[path], written);
        QCOMPARE(f.editor.lastError().isEmpty(), answer == Answer::Yes);
        if (answer == Answer::Yes) {
            // The document is UTF-8 from now on, so nothing is asked again.
            QVERIFY(f.editor.SaveFile(path, false));
            QCOMPARE(f.editor.textFormat().encoding, Encoding::Utf8);
        } else {
            QCOMPARE(f.editor.textFormat().encoding, Encoding::Windows1252);
        }
        QCOMPARE(f.editor.text(), u"äα\r\n"_s);
    }

    void aCopyInUtf8LeavesTheDocumentsEncoding()
    {
        EditorFixture f;
        f.files.contents[path] = "\xe4";
        QVERIFY(f.editor.OpenFile(path));
        f.editor.setSelText(u"α"_s);
        const Result<QByteArray> encoded = encodeText("αä", f.editor.textFormat());
        f.prompts.expect({encoded.error().sentence + u"\n\nSave \"copy.html\" as UTF-8 instead?"_s,
                          {},
                          Question::Icon::Exclamation,
                          Question::Buttons::YesNo},
                         Answer::Yes);
        QVERIFY(f.editor.SaveFile(u"/temp/copy.html"_s, false));
        QCOMPARE(f.files.contents[u"/temp/copy.html"_s], "αä"_ba);
        QCOMPARE(f.editor.textFormat().encoding, Encoding::Windows1252);
    }

    /// Saving a copy elsewhere doesn't change the document's file: what another program wrote to that file is still
    /// preserved.
    void aCopyElsewhereKeepsTheMemoryOfTheFile()
    {
        EditorFixture f;
        f.files.contents[path] = "one";
        QVERIFY(f.editor.OpenFile(path));
        const Result<void> foreign = f.files.write(path, "foreign");
        QVERIFY(foreign.ok());
        QVERIFY(f.editor.SaveFile(u"/temp/temp.html"_s, false));
        QVERIFY(f.editor.SaveFile(path, false));
        int kept = 0;
        for (const auto &[name, bytes] : f.files.contents)
            kept += name.startsWith(f.recoveryFolder.path() + u'/') && bytes == "foreign";
        QCOMPARE(kept, 1);
    }

    void thePiecesAreTheTextAroundTheGap()
    {
        EditorFixture f;
        f.editor.setText(u"one\r\ntwo\r\nthree"_s);
        f.editor.select({1, 3, 1, 3});
        f.editor.setSelText(u"!"_s);
        const auto pieces = f.editor.utf8Pieces();
        QCOMPARE(pieces[0].toByteArray(), "one\r\ntwo!"_ba);
        QCOMPARE(pieces[1].toByteArray(), "\r\nthree"_ba);
    }
};

ZEPHIRA_TEST(TstCodeMaxFiles)

} // namespace zephira

#include "tst_codemaxfiles.moc"
