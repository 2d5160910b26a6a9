// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/testregistry.h"
#include "tools/registerforms.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

const QString copyPath = u"/app/ldtemp.html"_s;
const QString designed = u" 11.34 KB"_s;

/// The form over a text and its copy.
struct Weight {
    std::unique_ptr<LivingForm> form;

    Weight(TestContext &world, const QString &text, std::optional<qsizetype> bytes)
    {
        world.editor.setText(text);
        if (bytes)
            world.files.contents[copyPath] = QByteArray(*bytes, 'x');
        FormCatalogue forms;
        tools::registerForms(forms, {});
        form = std::make_unique<LivingForm>(forms, u"frmDocSize"_s, world);
    }

    /// The five captions.
    QStringList captions() const
    {
        return {form->value(u"DocSize"_s), form->value(u"Modem14"_s), form->value(u"Modem28"_s),
                form->value(u"Modem56"_s), form->value(u"ModemLAN"_s)};
    }

    QAbstractItemModel &list() const { return *form->get<QTreeView>(u"lstlinks"_s).model(); }

    QStringList links() const
    {
        QStringList rows;
        for (int row = 0; row < list().rowCount(); ++row)
            rows.append(list().index(row, 0).data().toString());
        return rows;
    }
};

} // namespace

class TstFrmDocSize final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captions_data()
    {
        QTest::addColumn<qsizetype>("bytes");
        QTest::addColumn<QStringList>("captions");
        const auto row = [](const char *name, qsizetype bytes, const QStringList &captions) {
            QTest::newRow(name) << bytes << captions;
        };
        row("empty", 0, {u"0 KB"_s, u"0 Sec."_s, u"0 Sec."_s, u"0 Sec."_s, u"0 Sec."_s});
        row("100 bytes", 100, {u"0.09 KB"_s, u"0.06 Sec."_s, u"0.03 Sec."_s, u"0.01 Sec."_s, u"0.00 Sec."_s});
        row("one kilobyte", 1024, {u"1 KB"_s, u"0.62 Sec."_s, u"0.31 Sec."_s, u"0.16 Sec."_s, u"0.04 Sec."_s});
        row("ten kilobytes", 10240, {designed, u"6.20 Sec."_s, u"3.10 Sec."_s, u"1.6 Sec."_s, u"0.40 Sec."_s});
        row("100 kilobytes", 102400, {u"100 KB"_s, u"62.03 Sec."_s, u"31.00 Sec."_s, u"16 Sec."_s, u"4.05 Sec."_s});
    }

    void captions()
    {
        QFETCH(qsizetype, bytes);
        TestContext world;
        const Weight weight(world, {}, bytes);
        QTEST(weight.captions(), "captions");
    }

    void theImagesOfTheTextAreListed()
    {
        TestContext world;
        const Weight weight(world, u"<IMG SRC=\"A.gif\"><p><img src=b.png><img src=b.png>"_s, 5);
        QCOMPARE(weight.links(), (QStringList{u"A.gif"_s, u"b.png"_s, u"b.png"_s}));
        QCOMPARE(weight.list().headerData(0, Qt::Horizontal), u"Other Files"_s);
        for (int row = 0; row < 3; ++row) {
            const QModelIndex index = weight.list().index(row, 0);
            QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
            QCOMPARE(index.data(Qt::ToolTipRole), index.data());
            QVERIFY(!index.flags().testFlag(Qt::ItemIsEditable));
        }
    }

    void withoutACopyTheCaptionsStay()
    {
        TestContext world;
        const Weight weight(world, u"<img src=a>"_s, {});
        QCOMPARE(weight.captions(), (QStringList{designed, designed, designed, designed, designed}));
        QCOMPARE(weight.links(), QStringList{u"a"_s});
    }

    void aTagWithoutAnEndEndsTheLoad()
    {
        TestContext world;
        const Weight weight(world, u"<img src=a><img src=b"_s, 2048);
        QCOMPARE(weight.captions(), (QStringList{designed, designed, designed, designed, designed}));
        QVERIFY(weight.links().isEmpty());
    }

    void eachTimeIsComputedByName()
    {
        TestContext world;
        const Weight weight(world, {}, 2048);
        const QStringList expected{u"1.24 Sec."_s, u"0.62 Sec."_s, u"0.32 Sec."_s, u"0.08 Sec."_s};
        const QByteArrayList functions{"Modem14Func", "Modem28Func", "Modem56Func", "ModemLANFunc"};
        const QStringList captions{u"Modem14"_s, u"Modem28"_s, u"Modem56"_s, u"ModemLAN"_s};
        for (qsizetype i = 0; i < captions.size(); ++i) {
            auto &caption = weight.form->get<QLabel>(captions[i]);
            caption.setText(u"?"_s);
            QVERIFY(QMetaObject::invokeMethod(&weight.form->widget(), functions[i].constData()));
            QCOMPARE(caption.text(), expected[i]);
        }
    }

    void eachWayToClose_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("button") << 0;
        QTest::newRow("return") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("escape") << static_cast<int>(Qt::Key_Escape);
    }

    void eachWayToClose()
    {
        QFETCH(int, key);
        TestContext world;
        const Weight weight(world, u"<p>"_s, 3);
        QVERIFY(weight.form->get<QPushButton>(u"Command1"_s).isDefault());
        if (key == 0)
            weight.form->press(u"Command1"_s);
        else
            weight.form->key(static_cast<Qt::Key>(key));
        QVERIFY(!weight.form->isOpen());
        QVERIFY(world.inserter.inserted.isEmpty());
    }

    void aMillionImages()
    {
        TestContext world;
        const Weight weight(world, u"<img src=a>"_s.repeated(1'000'000), 1);
        QCOMPARE(weight.list().rowCount(), 1'000'000);
    }
};

ZEPHIRA_TEST(TstFrmDocSize)

#include "tst_frmdocsize.moc"
