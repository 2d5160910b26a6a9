// SPDX-License-Identifier: GPL-3.0-or-later
#include "ftp/ftpmenus.h"
#include "ftp/ftpwindowbench.h"
#include "support/actionwalk.h"
#include "support/testregistry.h"

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Bench = FtpWindowBench;

/// All rows of the window, open. The pop-ups of the two lists are menus of the bar.
QList<QAction *> openActions(const Bench &bench)
{
    bench.form->get<QAction>(u"zProperties"_s).setEnabled(true);
    return actionsOf(bench.form->get<QWidget>(u"menubar"_s)) + actionsOf(bench.form->get<QToolBar>(u"Toolbar1"_s));
}

FtpMenus &menusOf(const Bench &bench)
{
    return *bench.form->widget().findChild<FtpMenus *>();
}

/// The entry that a tool key stands for, or the name itself.
QString entryOf(const QString &name)
{
    for (const auto &keys : {localToolKeys(), remoteToolKeys()}) {
        for (const FtpToolKey &key : keys) {
            if (key.key == name)
                return key.entry.toString();
        }
    }
    return name;
}

} // namespace

/// Everything that can be chosen in the FTP window does one thing.
class TstFtpCommandRows final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachRowHasOneEffect()
    {
        Bench bench;
        bench.open();
        const QList<QAction *> actions = openActions(bench);
        QCOMPARE(faultsOf(actions), QStringList());
        // 37 entries and 14 keys: a walk that has lost its way would find no fault either.
        QCOMPARE(choosable(actions).size(), 51);
        QCOMPARE(Listeners::to(menusOf(bench), SIGNAL(chosen(zephira::FtpMenuItem))), 1);
    }

    /// A click passes on the row with the clicked name, and no two rows have the same effect.
    void eachRowHandsOnWhatItDoes()
    {
        Bench bench;
        bench.open();
        FtpMenus &menus = menusOf(bench);
        QVERIFY(disconnect(&menus, &FtpMenus::chosen, nullptr, nullptr));
        std::vector<const FtpMenuItem *> chosen;
        connect(&menus, &FtpMenus::chosen, this, [&](const FtpMenuItem &item) { chosen.push_back(&item); });
        QHash<QString, FtpEffect> effects;
        const QList<QAction *> choices = choosable(openActions(bench));
        for (QAction *action : choices) {
            chosen.clear();
            action->trigger();
            QCOMPARE(chosen.size(), static_cast<std::size_t>(1));
            const FtpMenuItem &item = *chosen.front();
            QCOMPARE(item.name.toString(), entryOf(action->objectName()));
            QVERIFY2(hasEffect(item), qPrintable(action->objectName()));
            effects.insert(item.name.toString(), item.effect);
        }
        QCOMPARE(effects.size(), 37);
        for (auto one = effects.cbegin(); one != effects.cend(); ++one) {
            for (auto other = std::next(one); other != effects.cend(); ++other)
                QVERIFY2(one.value() != other.value(), qPrintable(one.key() + u" does what does "_s + other.key()));
        }
    }

    /// A chosen row reaches the part that it names.
    void rowsReachTheirParts()
    {
        Bench bench;
        bench.open();
        bench.choose(u"zAscii"_s);
        QCOMPARE(bench.client->session.ftpTransferType, 1);
        bench.choose(u"zBinary"_s);
        QCOMPARE(bench.client->session.ftpTransferType, 2);
        bench.choose(u"zsBigIc"_s);
        QCOMPARE(bench.remote().view(), static_cast<int>(FileListMode::LargeIcons));
        QCOMPARE(bench.local().view(), static_cast<int>(FileListMode::Report));
        bench.choose(u"zConnect"_s);
        QCOMPARE(bench.world.forms.modal, QStringList{u"FrmConnect"_s});
        bench.choose(u"zDisconnect"_s);
        QCOMPARE(bench.operations.log, (QStringList{u"InternetCloseHandle(0)"_s, u"InternetCloseHandle(0)"_s}));
        bench.choose(u"zEnd"_s);
        QVERIFY(!bench.form->widget().isVisible());
    }
};

ZEPHIRA_TEST(TstFtpCommandRows)
#include "tst_ftpcommandrows.moc"
