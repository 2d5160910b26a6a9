// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "widgets/formroom.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstFormRoom final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesThatWrapGetTheirHeight()
    {
        QDialog form;
        form.resize(200, 50);
        auto *layout = new QVBoxLayout(&form);
        auto *label = new QLabel(u"A sentence that is much longer than the form is wide, and goes on for a while."_s);
        label->setWordWrap(true);
        layout->addWidget(label);
        giveRoom(form);
        form.show();
        QCOMPARE(form.width(), 200);
        QVERIFY(label->height() >= label->heightForWidth(label->width()));
        QVERIFY(!form.findChild<QScrollArea *>());
    }

    void aFormThatFitsStaysAsItIs()
    {
        QDialog form;
        auto *layout = new QVBoxLayout(&form);
        layout->addWidget(new QLineEdit);
        form.resize(321, 123);
        giveRoom(form);
        QCOMPARE(form.size(), QSize(321, 123));
        QCOMPARE(form.layout(), layout);
    }

    void aFormLargerThanTheScreenScrolls()
    {
        QDialog form;
        form.setMinimumHeight(5000);
        auto *layout = new QVBoxLayout(&form);
        layout->setSizeConstraint(QLayout::SetFixedSize);
        QList<QLineEdit *> boxes;
        for (int i = 0; i < 200; ++i) {
            boxes.append(new QLineEdit);
            layout->addWidget(boxes.last());
        }
        auto *button = new QPushButton(u"OK"_s);
        button->setDefault(true);
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, &form, &QDialog::accept);
        giveRoom(form);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        const QSize screen = form.screen()->availableSize();
        QVERIFY(form.width() <= screen.width() && form.height() <= screen.height());
        const auto *area = form.findChild<QScrollArea *>();
        QVERIFY(area);
        QVERIFY(area->widget()->height() > screen.height());
        // Wide enough for the vertical bar, so that there is no other.
        QVERIFY(area->widget()->width() <= area->viewport()->width());

        // The Tab key goes through the controls in their order, and the area follows.
        boxes.first()->setFocus();
        for (qsizetype i = 1; i < boxes.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), boxes[i]);
            QVERIFY(!boxes[i]->visibleRegion().isEmpty());
        }
        // Return still presses the default button.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(form.result(), static_cast<int>(QDialog::Accepted));
    }
};

ZEPHIRA_TEST(TstFormRoom)
#include "tst_formroom.moc"
