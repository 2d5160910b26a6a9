// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/accessibleeditor.h"
#include "editor/accessiblenews.h"
#include "editor/editorfixture.h"
#include "support/testregistry.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace zephira {

/// Positions arrive in bytes and are reported in characters.
class TstAccessibleNews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertionsAndDeletionsBearTheirText()
    {
        EditorFixture f;
        f.editor.setText(u"ä𝒳bc"_s);
        AccessibleNews news(f.editor, f.editor.engine());
        QStringList told;
        news.setListener([&](QAccessibleEvent *event) {
            QCOMPARE(event->object(), &f.editor);
            if (event->type() == QAccessible::TextInserted) {
                const auto *inserted = static_cast<QAccessibleTextInsertEvent *>(event);
                told.append(u"+%1 %2"_s.arg(inserted->changePosition()).arg(inserted->textInserted()));
            } else if (event->type() == QAccessible::TextRemoved) {
                const auto *removed = static_cast<QAccessibleTextRemoveEvent *>(event);
                told.append(u"-%1 %2"_s.arg(removed->changePosition()).arg(removed->textRemoved()));
            }
        });
        news.inserted(6, 1);
        news.willRemove(0, 6);
        QCOMPARE(told, (QStringList{u"+3 b"_s, u"-0 ä𝒳"_s}));
    }

    void selectionsAreToldFromTheirStart_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("caret");
        QTest::newRow("forwards") << 2 << 3;
        QTest::newRow("backwards") << 3 << 2;
        QTest::newRow("nothing selected") << 2 << 2;
    }
    void selectionsAreToldFromTheirStart()
    {
        QFETCH(int, anchor);
        QFETCH(int, caret);
        EditorFixture f;
        f.editor.setText(u"äbc"_s);
        AccessibleNews news(f.editor, f.editor.engine());
        QList<int> told;
        news.setListener([&](QAccessibleEvent *event) {
            if (event->type() == QAccessible::TextSelectionChanged) {
                const auto *selected = static_cast<QAccessibleTextSelectionEvent *>(event);
                told << selected->selectionStart() << selected->selectionEnd() << selected->cursorPosition();
            } else {
                told << static_cast<QAccessibleTextCursorEvent *>(event)->cursorPosition();
            }
        });
        news.selectionMoved(anchor, caret);
        QCOMPARE(told, (QList<int>{std::min(anchor, caret) - 1, std::max(anchor, caret) - 1, caret - 1, caret - 1}));
    }

    /// Offsets need an index, which costs time for each line of a loaded text.
    void nothingIsCountedWhileNobodyListens()
    {
        if (QAccessible::isActive())
            QAccessible::setActive(false);
        EditorFixture f;
        f.editor.setText(u"abc"_s);
        AccessibleNews news(f.editor, f.editor.engine());
        news.inserted(0, 1);
        news.willRemove(0, 1);
        news.selectionMoved(0, 1);
        QCOMPARE(f.editor.engine().send(QsciScintillaBase::SCI_GETLINECHARACTERINDEX), 0);
    }
};

ZEPHIRA_TEST(TstAccessibleNews)

} // namespace zephira

#include "tst_accessiblenews.moc"
