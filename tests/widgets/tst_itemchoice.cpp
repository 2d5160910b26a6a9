// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/itemchoice.h"

#include <QListWidget>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTreeWidget>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstItemChoice final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnAndDoubleClickChoose()
    {
        QListWidget list;
        list.addItems({u"one"_s, u"two"_s});
        QStringList chosen;
        onItemChosen(list, this, [&](const QModelIndex &item) { chosen.append(item.data().toString()); });

        QTest::keyClick(&list, Qt::Key_Return);
        QVERIFY(chosen.isEmpty());
        list.setCurrentRow(1);
        QTest::keyClick(&list, Qt::Key_Return);
        QTest::keyClick(&list, Qt::Key_Enter);
        Q_EMIT list.doubleClicked(list.model()->index(0, 0));
        QCOMPARE(chosen, (QStringList{u"two"_s, u"two"_s, u"one"_s}));
        QVERIFY(list.editTriggers() == QAbstractItemView::NoEditTriggers);
    }

    void nobodyIsCalledWhoHasGone()
    {
        QListWidget list;
        list.addItem(u"one"_s);
        list.setCurrentRow(0);
        int calls = 0;
        {
            QObject receiver;
            onItemChosen(list, &receiver, [&](const QModelIndex &) { ++calls; });
            QTest::keyClick(&list, Qt::Key_Return);
        }
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(calls, 1);
    }

    void aDoubleClickOpensNoNode()
    {
        QTreeWidget tree;
        onItemChosen(tree, this, [](const QModelIndex &) {});
        QVERIFY(!tree.expandsOnDoubleClick());
    }

    void longTextsAreCutWhereTheyArePainted()
    {
        QListWidget list;
        const QString text(5000, u'x');
        list.addItem(text);
        onItemChosen(list, this, [](const QModelIndex &) {});
        const auto *delegate = qobject_cast<QStyledItemDelegate *>(list.itemDelegate());
        QVERIFY(delegate);
        QCOMPARE(delegate->displayText(text, {}), text.left(1000));
        QCOMPARE(list.item(0)->text(), text);
    }
};

ZEPHIRA_TEST(TstItemChoice)

#include "tst_itemchoice.moc"
