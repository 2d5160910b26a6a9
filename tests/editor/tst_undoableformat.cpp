// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/undoableformat.h"
#include "support/testregistry.h"

using namespace Qt::StringLiterals;
using Sci = QsciScintillaBase;

namespace zephira {

class TstUndoableFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterTypesTheTextsOwnLineEnd_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<LineEnds>("lineEnds");
        QTest::addColumn<LineEnds>("typed");
        QTest::newRow("CR LF") << QByteArray("a") << LineEnds::CrLf << LineEnds::CrLf;
        QTest::newRow("LF") << QByteArray("a") << LineEnds::Lf << LineEnds::Lf;
        QTest::newRow("CR") << QByteArray("a") << LineEnds::Cr << LineEnds::Cr;
        QTest::newRow("the most frequent of several") << QByteArray("a\r\nb\nc\n") << LineEnds::Mixed << LineEnds::Lf;
    }
    void enterTypesTheTextsOwnLineEnd()
    {
        QFETCH(QByteArray, text);
        QFETCH(LineEnds, lineEnds);
        EditorFixture f;
        UndoableFormat format(f.editor.engine());
        QVERIFY(format.typedLineEnds() == LineEnds::CrLf);
        f.editor.engine().replace(0, 0, text);
        format.restart({Encoding::Utf8, false, lineEnds});
        QFETCH(LineEnds, typed);
        QVERIFY(format.typedLineEnds() == typed);
    }

    void aNewStartIsUndoneByItsNumber()
    {
        EditorFixture f;
        UndoableFormat format(f.editor.engine());
        const TextFormat file{Encoding::Windows1252, false, LineEnds::Lf};
        format.restart(file);
        QVERIFY(!f.editor.canUndo());
        format.startAnew();
        QVERIFY(format.current() == TextFormat());
        QVERIFY(format.typedLineEnds() == LineEnds::CrLf);
        QVERIFY(f.editor.canUndo());
        for (const int strange : {-1, 1}) {
            format.changeWasUndone(strange, true);
            QVERIFY(format.current() == TextFormat());
        }
        format.changeWasUndone(0, true);
        QVERIFY(format.current() == file);
        QVERIFY(format.typedLineEnds() == LineEnds::Lf);
        format.changeWasUndone(0, false);
        QVERIFY(format.current() == TextFormat());
    }

    void aPlainFormatStartsAnewWithoutAStep()
    {
        EditorFixture f;
        UndoableFormat format(f.editor.engine());
        format.startAnew();
        QVERIFY(!f.editor.canUndo());
    }

    void anotherDocumentForgetsTheChanges()
    {
        EditorFixture f;
        UndoableFormat format(f.editor.engine());
        format.restart({Encoding::Utf8, true, LineEnds::Lf});
        format.startAnew();
        format.restart({Encoding::Utf8, false, LineEnds::Cr});
        format.changeWasUndone(0, true);
        QVERIFY(format.current().lineEnds == LineEnds::Cr);
    }
};

ZEPHIRA_TEST(TstUndoableFormat)

} // namespace zephira

#include "tst_undoableformat.moc"
