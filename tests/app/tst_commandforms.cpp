// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"
#include "commands/menutable.h"
#include "commands/palettetable.h"
#include "commands/tagsmenu.h"
#include "commands/toolbartable.h"
#include "core/documenthost.h"
#include "core/languages.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

/// Every form that a command names exists.
class TstCommandForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormOfACommandExists()
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
            QVERIFY2(bench.catalogue.contains(form), qPrintable(form));
    }

    /// The walk of the other test, and every action besides: none is put off.
    void noEntrySaysThatItIsNotAvailable()
    {
        WindowBench bench;
        bench.start();
        bench.window->context().document.setLanguageRow(language::Html);
        const QList<QAction *> actions = bench.window->findChildren<QAction *>();
        QVERIFY2(actions.size() > 300, qPrintable(QString::number(actions.size())));
        for (const QAction *action : actions) {
            for (const QString &text : {action->text(), action->toolTip(), action->statusTip(), action->whatsThis()})
                QVERIFY2(!text.contains(u"available yet"_s, Qt::CaseInsensitive), qPrintable(text));
        }
        QVERIFY(bench.find<QAction>(u"fileassociations"_s)->isEnabled());
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

ZEPHIRA_TEST(TstCommandForms)
#include "tst_commandforms.moc"
