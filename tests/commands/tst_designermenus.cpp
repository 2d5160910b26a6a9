// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/designermenus.h"
#include "commands/menutable.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QStringList formats{u"Normal"_s, u"Heading 1"_s, u"Paragraph"_s};

/// The entries as texts: the name; "+" if enabled, "-" if disabled; "*" if checked, "o" if unchecked; the caption.
QStringList described(const QList<DesignerMenuEntry> &entries)
{
    QStringList lines;
    for (const DesignerMenuEntry &entry : entries) {
        QString line = entry.name;
        if (entry.enabled)
            line += *entry.enabled ? u" +"_s : u" -"_s;
        if (entry.checked)
            line += *entry.checked ? u" *"_s : u" o"_s;
        if (entry.caption)
            line += u' ' + *entry.caption;
        lines.append(line);
    }
    return lines;
}

/// A menu of the bar as it opens.
QStringList opened(const QString &menu, Designer &designer)
{
    const MenuItem *item = findMenuItem(menu);
    if (!item)
        qFatal("no menu is named %s", qPrintable(menu));
    return described(designerMenuEntries(*item, designer, formats));
}

} // namespace

/// The designer's menus as they open.
class TstDesignerMenus final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableFollowsTheStatuses()
    {
        FakeDesigner designer;
        designer.statuses[DesignerCommand::InsertRow] = DesignerStatus::Disabled;
        designer.statuses[DesignerCommand::MergeCells] = DesignerStatus::NotSupported;
        QCOMPARE(
            opened(u"Table"_s, designer),
            (QStringList{u"TableSub_0 +"_s, u"TableSub_2 -"_s, u"TableSub_3 +"_s, u"TableSub_4 +"_s, u"TableSub_6 +"_s,
                         u"TableSub_7 +"_s, u"TableSub_8 +"_s, u"TableSub_10 -"_s, u"TableSub_11 +"_s}));
    }

    void insertFollowsTheSelection_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("mark");
        QTest::newRow("caret") << u"None"_s << u"+"_s;
        QTest::newRow("text") << u"Text"_s << u"+"_s;
        QTest::newRow("element") << u"Control"_s << u"-"_s;
    }

    void insertFollowsTheSelection()
    {
        QFETCH(QString, type);
        QFETCH(QString, mark);
        FakeDesigner designer;
        designer.selected = type;
        designer.statuses[DesignerCommand::Hyperlink] = DesignerStatus::Disabled;
        QCOMPARE(
            opened(u"Insert"_s, designer),
            (QStringList{u"InsertSub_0 +"_s, u"InsertSub_1 -"_s, u"InsertButton "_s + mark, u"InsertHTML "_s + mark}));
    }

    void positionsCaption_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("first");
        QTest::newRow("positioned") << 7 << u"D2DSub_0 + Set Position Attribute To 1D"_s;
        QTest::newRow("not positioned") << 3 << u"D2DSub_0 + Set Position Attribute To Absolute"_s;
        QTest::newRow("mixed") << 11 << u"D2DSub_0 - Set Position Attribute To Absolute"_s;
        QTest::newRow("disabled") << 1 << u"D2DSub_0 - Set Position Attribute To Absolute"_s;
        QTest::newRow("not supported") << 0 << u"D2DSub_0 - Set Position Attribute To Absolute"_s;
    }

    void positionsCaption()
    {
        QFETCH(int, status);
        FakeDesigner designer;
        designer.statuses[DesignerCommand::AbsolutePosition] = status;
        designer.statuses[DesignerCommand::BringToFront] = DesignerStatus::Disabled;
        const QStringList entries = opened(u"d2d"_s, designer);
        QTEST(entries.value(0), "first");
        QCOMPARE(entries.mid(1),
                 (QStringList{u"D2DSub_1 -"_s, u"D2DSub_2 +"_s, u"D2DSub_3 +"_s, u"D2DSub_4 +"_s, u"D2DSub_5 +"_s,
                              u"D2DSub_6 +"_s, u"D2DSub_8 + o"_s}));
    }

    void aLockedElementIsChecked()
    {
        FakeDesigner designer;
        designer.statuses[DesignerCommand::LockElement] = DesignerStatus::On;
        QCOMPARE(opened(u"d2d"_s, designer).last(), u"D2DSub_8 + *"_s);
    }

    void formatChecksTheCurrentOne_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QStringList>("entries");
        const QStringList open{u"FormatSub_0 + o"_s, u"FormatSub_1 + *"_s, u"FormatSub_2 + o"_s};
        QTest::newRow("heading") << 3 << u"Heading 1"_s << open;
        QTest::newRow("mixed") << 11 << u"Heading 1"_s << open;
        QTest::newRow("unknown") << 3 << u"Blink"_s
                                 << QStringList{u"FormatSub_0 + o"_s, u"FormatSub_1 + o"_s, u"FormatSub_2 + o"_s};
        QTest::newRow("disabled") << 1 << u"Heading 1"_s
                                  << QStringList{u"FormatSub_0 - o"_s, u"FormatSub_1 - o"_s, u"FormatSub_2 - o"_s};
    }

    void formatChecksTheCurrentOne()
    {
        QFETCH(int, status);
        QFETCH(QString, current);
        FakeDesigner designer;
        designer.statuses[DesignerCommand::GetBlockFormat] = status;
        designer.results[DesignerCommand::GetBlockFormat] = current;
        QTEST(opened(u"Format"_s, designer), "entries");
    }

    void viewShowsTheSwitches()
    {
        FakeDesigner designer;
        designer.details = true;
        QCOMPARE(opened(u"View"_s, designer),
                 (QStringList{u"ViewSub_0 o"_s, u"ViewSub_1 *"_s, u"ViewSub_2 o"_s, u"ViewSub_10 o"_s}));
    }
};

ZEPHIRA_TEST(TstDesignerMenus)
#include "tst_designermenus.moc"
