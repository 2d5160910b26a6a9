// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comingforms.h"
#include "app/windowbench.h"
#include "commands/menutable.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

/// Every form that a command names is in the catalogue, either implemented or announced.
class TstComingForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormOfACommandIsKnown()
    {
        WindowBench bench;
        QStringList forms;
        collect(menuBarTable(), forms);
        collect(popupTable(), forms);
        for (const ToolBarTable *table : {&standardToolBar(), &formattingToolBar()}) {
            for (const ToolButton &button : table->buttons) {
                forms.append(button.form.toString());
                for (const PullDownEntry &entry : button.pullDown)
                    forms.append(entry.form.toString());
            }
        }
        for (const PaletteToolbar &toolbar : paletteToolbars()) {
            for (const QuickTag &tag : toolbar.buttons)
                forms.append(tag.form().toString());
        }
        for (const QuickTag &tag : tagsMenu())
            forms.append(tag.form().toString());
        forms.removeAll(QString());
        forms.removeDuplicates();
        QVERIFY(forms.size() > 30);
        for (const QString &form : std::as_const(forms))
            QVERIFY2(bench.catalogue.contains(form) != bench.catalogue.isAnnounced(form), qPrintable(form));
    }

    void aWrittenFormIsNoLongerAnnounced()
    {
        FormCatalogue catalogue;
        catalogue.announce(u"frmNew"_s);
        QVERIFY(catalogue.isAnnounced(u"frmNew"_s));
        QVERIFY(!catalogue.contains(u"frmNew"_s));
        QVERIFY(catalogue.names().isEmpty());
        catalogue.add(u"frmNew"_s, [](const AppContext &, QWidget *owner) { return new QWidget(owner); });
        QVERIFY(!catalogue.isAnnounced(u"frmNew"_s));
        QCOMPARE(catalogue.names(), QStringList{u"frmNew"_s});
        catalogue.announce(u"frmNew"_s);
        QVERIFY(catalogue.contains(u"frmNew"_s));
    }

private:
    static void collect(std::span<const MenuItem> items, QStringList &forms)
    {
        for (const MenuItem &item : items) {
            forms.append(item.form.toString());
            collect(item.children, forms);
        }
    }
};

ZEPHIRA_TEST(TstComingForms)
#include "tst_comingforms.moc"
