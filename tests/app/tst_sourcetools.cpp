// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "support/testregistry.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// What the next modal form shows before it is closed with Escape.
class NextForm
{
public:
    explicit NextForm(QObject &window, std::function<void(QWidget &)> look = {})
    {
        QTimer::singleShot(0, &window, [this, look = std::move(look)] {
            QWidget *form = QApplication::activeModalWidget();
            QVERIFY(form);
            name = form->objectName();
            if (look)
                look(*form);
            QTest::keyClick(form, Qt::Key_Escape);
        });
    }
    Q_DISABLE_COPY_MOVE(NextForm)

    QString name;
};

} // namespace

/// The forms for the source of a page, opened from the real window.
class TstSourceTools final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWeightIsThatOfTheCodeView()
    {
        WindowBench bench;
        frmmain &window = bench.start(bench.write(u"page.html"_s, "<p>"));
        window.show();
        window.rt().setText(u"<img src=a.gif>"_s + QString(1009, u'\u00e4'));
        QString size;
        QString image;
        const NextForm weight(window, [&](QWidget &form) {
            size = form.findChild<QLabel *>(u"DocSize"_s)->text();
            image = form.findChild<QTreeView *>(u"lstlinks"_s)->model()->index(0, 0).data().toString();
        });
        bench.click(u"Toolbar1"_s, u"loadtime"_s);
        QCOMPARE(weight.name, u"frmDocSize"_s);
        QCOMPARE(size, u"1.98 KB"_s);
        QCOMPARE(image, u"a.gif"_s);
        QCOMPARE(bench.read(bench.appPath() + u"/ldtemp.html"_s), window.rt().text().toUtf8());
    }
};

ZEPHIRA_TEST(TstSourceTools)

#include "tst_sourcetools.moc"
