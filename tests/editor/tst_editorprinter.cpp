// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editorfixture.h"
#include "editor/editorprinter.h"
#include "support/testregistry.h"

#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace zephira {

class TstEditorPrinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeTextIsPrinted_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("fewestPages");
        QTest::addColumn<int>("mostPages");
        QTest::newRow("one page") << 3 << 1 << 1;
        QTest::newRow("several pages") << 300 << 3 << 8;
    }
    void theWholeTextIsPrinted()
    {
        QFETCH(int, lines);
        QFETCH(int, fewestPages);
        QFETCH(int, mostPages);
        QTemporaryDir folder;
        const QString file = folder.filePath(u"out.pdf"_s);
        EditorFixture f;
        f.editor.setLanguage(u"HTML"_s);
        f.editor.setText(u"<p>text</p>\r\n"_s.repeated(lines));
        f.editor.printer().setSetup([&](QPrinter &printer, const std::function<void()> &go) {
            printer.setOutputFileName(file);
            printer.setPageSize(QPageSize(QPageSize::A4));
            go();
        });
        const QString before = f.editor.text();
        f.editor.PrintContents(0, 12);
        QFile pdf(file);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        const QByteArray bytes = pdf.readAll();
        QVERIFY(bytes.startsWith("%PDF"));
        const auto pages = bytes.count("/Type /Page\n");
        QVERIFY2(pages >= fewestPages && pages <= mostPages, QByteArray::number(pages).constData());
        QCOMPARE(f.editor.text(), before);
    }

    void calledOffNothingIsPrinted()
    {
        EditorFixture f;
        f.editor.setText(u"x"_s);
        int asked = 0;
        f.editor.printer().setSetup([&](QPrinter &printer, const std::function<void()> &) {
            ++asked;
            // The desktop's dialog proposes this file name for a text without a name.
            QCOMPARE(printer.docName(), u"Untitled.pdf"_s);
        });
        f.editor.PrintContents(0, 12);
        QCOMPARE(asked, 1);
    }

    void theDesktopsDialogAsks()
    {
        EditorFixture f;
        f.show();
        f.editor.setText(u"x"_s);
        f.editor.PrintContents(0, 12);
        auto *dialog = f.editor.findChild<QPrintDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        QPointer<QPrintDialog> gone(dialog);
        dialog->reject();
        QTRY_VERIFY(!gone);
    }
};

ZEPHIRA_TEST(TstEditorPrinter)

} // namespace zephira

#include "tst_editorprinter.moc"
