// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "core/documenthost.h"
#include "document/document.h"
#include "support/testregistry.h"

#include <QDialog>
#include <QDir>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The start dialog over the real window.
class TstStartDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bench = std::make_unique<WindowBench>(); }
    void cleanup() { m_bench.reset(); }

    void theWindowTellsWhetherTheTextIsSaved()
    {
        frmmain &window = m_bench->start(m_bench->write(u"page.html"_s, "<p>\n"));
        const DocumentHost &host = window.context().document;
        QVERIFY(!host.isModified());
        window.rt().setSelText(u"x"_s);
        QVERIFY(host.isModified());
        window.document().doSave();
        QVERIFY(!host.isModified());
    }

    void aTemplateReplacesUnsavedText()
    {
        frmmain &window = m_bench->start(m_bench->write(u"page.html"_s, "<p>\n"));
        window.rt().setSelText(u"unsaved "_s);
        press(u"Command13"_s);
        QVERIFY(window.rt().text().startsWith(u"/* Cool Blue"_s));
        QCOMPARE(window.context().document.languageRow(), 8);
        // It is still the same document, with other text.
        QCOMPARE(window.windowTitle(), u"Zephira - ["_s + m_bench->folder() + u"/page.html]"_s);
        QVERIFY(window.document().docModified());
        const QDir copies(m_bench->recovery.folder());
        const QStringList kept = copies.entryList({u"open-*-page.html"_s}, QDir::Files);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(WindowBench::read(copies.filePath(kept.first())), "unsaved <p>\n");
        window.rt().undo();
        QCOMPARE(window.rt().text(), u"unsaved <p>\r\n"_s);
    }

    void aTemplateReplacesSavedTextWithoutACopy()
    {
        frmmain &window = m_bench->start(m_bench->write(u"page.html"_s, "<p>\n"));
        press(u"Command30"_s);
        QVERIFY(window.rt().text().contains(u"public class Program"_s));
        QCOMPARE(window.context().document.languageRow(), 7);
        QVERIFY(QDir(m_bench->recovery.folder()).entryList(QDir::Files).isEmpty());
    }

private:
    /// Opens the start dialog and presses one of its buttons.
    void press(const QString &button) const
    {
        const std::unique_ptr<QWidget> form(
            m_bench->catalogue.make(u"frmselprj"_s, m_bench->window->context(), m_bench->window.get()));
        form->findChild<QPushButton *>(button)->click();
    }

    std::unique_ptr<WindowBench> m_bench;
};

ZEPHIRA_TEST(TstStartDialog)

#include "tst_startdialog.moc"
