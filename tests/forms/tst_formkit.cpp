// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/formnames.h"
#include "support/testregistry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A form with a box, a check box, a list and a button.
QDialog *makeSample()
{
    auto *form = new QDialog;
    form->setObjectName(u"frmSample"_s);
    form->setWindowTitle(u"Sample"_s);
    auto *layout = new QFormLayout(form);
    auto *box = new QLineEdit(u"old"_s);
    box->setObjectName(u"Text1"_s);
    layout->addRow(u"Name"_s, box);
    layout->labelForField(box)->setObjectName(u"lblName"_s);
    auto *check = new QCheckBox(u"Check"_s);
    check->setObjectName(u"Check1"_s);
    layout->addRow(check);
    auto *list = new QComboBox;
    list->setObjectName(u"Combo1"_s);
    list->setAccessibleName(u"List"_s);
    list->addItems({u"One"_s, u"Two"_s});
    layout->addRow(list);
    auto *button = new QPushButton(u"&Close"_s);
    button->setObjectName(u"Command1"_s);
    layout->addRow(button);
    QObject::connect(button, &QPushButton::clicked, form, &QDialog::accept);
    return form;
}

FormCatalogue sampleCatalogue()
{
    FormCatalogue catalogue;
    catalogue.add(u"frmSample"_s, [](const AppContext &, QWidget *) -> QWidget * { return makeSample(); });
    return catalogue;
}

QList<NamedControl> sampleNames()
{
    return {{u"frmSample"_s, u"QDialog"_s, u"Sample"_s},
            {u"lblName"_s, u"QLabel"_s, u"Name"_s},
            {u"Text1"_s, u"QLineEdit"_s, {}},
            {u"Check1"_s, u"QCheckBox"_s, u"Check"_s},
            {u"Combo1"_s, u"QComboBox"_s, {}},
            {u"Command1"_s, u"QPushButton"_s, u"&Close"_s}};
}

} // namespace

/// Proves that the kit finds faults of a form; a kit that found none would let every form pass.
class TstFormKit final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drivesByName()
    {
        TestContext world;
        const LivingForm form(sampleCatalogue(), u"frmSample"_s, world);
        QCOMPARE(form.focus(), u"Text1"_s);
        form.type(u"Text1"_s, u"new"_s);
        QCOMPARE(form.value(u"Text1"_s), u"new"_s);
        form.press(u"Check1"_s);
        QCOMPARE(form.value(u"Check1"_s), u"on"_s);
        form.set(u"Check1"_s, u"off"_s);
        QCOMPARE(form.value(u"Check1"_s), u"off"_s);
        form.set(u"Combo1"_s, u"Two"_s);
        QCOMPARE(form.value(u"Combo1"_s), u"Two"_s);
        QCOMPARE(form.value(u"Command1"_s), u"&Close"_s);
        QCOMPARE(form.value(u"frmSample"_s), u"Sample"_s);
        QVERIFY(form.isOpen());
        form.press(u"Command1"_s);
        QVERIFY(!form.isOpen());
    }

    void escapeCloses()
    {
        TestContext world;
        const LivingForm form(sampleCatalogue(), u"frmSample"_s, world);
        form.key(Qt::Key_Escape);
        QVERIFY(!form.isOpen());
    }

    void guardClosesStrayWindows()
    {
        QStringList failures;
        ModalGuard guard;
        guard.onFailure = [&](const QString &message) { failures.append(message); };
        QMessageBox stray(QMessageBox::Warning, u"Title"_s, u"Nobody asked"_s);
        stray.exec();
        QCOMPARE(failures.size(), 1);
        QVERIFY(failures[0].contains(u"\"Title\": Nobody asked"_s));
    }

    void findsNothingInAGoodForm()
    {
        const std::unique_ptr<QDialog> form(makeSample());
        QCOMPARE(differencesFromForm(sampleNames(), *form), QStringList());
    }

    void findsWhatIsWrong_data()
    {
        QTest::addColumn<std::function<void(QDialog &)>>("spoil");
        QTest::addColumn<QString>("difference");
        using Spoil = std::function<void(QDialog &)>;
        QTest::newRow("name") << Spoil([](QDialog &f) {
            f.findChild<QWidget *>(u"Check1"_s)->setObjectName(u"Check2"_s);
        }) << u"Check1 is missing in the form\nCheck2 of the form isn't in the list"_s;
        QTest::newRow("twice") << Spoil(
            [](QDialog &f) { f.findChild<QWidget *>(u"Check1"_s)->setObjectName(u"Text1"_s); })
                               << u"Text1 stands twice in the form\nCheck1 is missing in the form\n"
                                  "the tab order is Text1 Text1 Combo1 Command1, not Text1 Combo1 Command1"_s;
        QTest::newRow("caption") << Spoil([](QDialog &f) {
            f.findChild<QCheckBox *>(u"Check1"_s)->setText(u"check"_s);
        }) << u"Check1 reads \"check\", not \"Check\""_s;
        QTest::newRow("title") << Spoil([](QDialog &f) { f.setWindowTitle(u"Simple"_s); })
                               << u"frmSample reads \"Simple\", not \"Sample\""_s;
        QTest::newRow("accessible name") << Spoil([](QDialog &f) {
            f.findChild<QWidget *>(u"Combo1"_s)->setAccessibleName({});
            f.findChild<QComboBox *>(u"Combo1"_s)->clear();
        }) << u"Combo1 has no accessible name"_s;
        QTest::newRow("label") << Spoil([](QDialog &f) { f.findChild<QLabel *>(u"lblName"_s)->setBuddy(nullptr); })
                               << u"Text1 has no accessible name"_s;
        QTest::newRow("tab order") << Spoil([](QDialog &f) {
            QWidget::setTabOrder(f.findChild<QWidget *>(u"Command1"_s), f.findChild<QWidget *>(u"Check1"_s));
        }) << u"the tab order is Text1 Combo1 Command1 Check1, not Text1 Check1 Combo1 Command1"_s;
        QTest::newRow("class") << Spoil([](QDialog &f) {
            delete f.findChild<QCheckBox *>(u"Check1"_s);
            auto *button = new QRadioButton(u"Check"_s, &f);
            button->setObjectName(u"Check1"_s);
            QWidget::setTabOrder(f.findChild<QWidget *>(u"Text1"_s), button);
        }) << u"Check1 is a QRadioButton, not a QCheckBox"_s;
    }

    void findsWhatIsWrong()
    {
        QFETCH(std::function<void(QDialog &)>, spoil);
        const std::unique_ptr<QDialog> form(makeSample());
        spoil(*form);
        const QStringList differences = differencesFromForm(sampleNames(), *form);
        QTEST(differences.join(u'\n'), "difference");
    }

    void readsUiFiles()
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(R"(<ui version="4.0"><widget class="QDialog" name="frmSample">
            <property name="windowTitle"><string>Sample</string></property><layout class="QFormLayout" name="l">
            <item row="0" column="0"><widget class="QLabel" name="lblName"><property name="text"><string>Name</string></property></widget></item>
            <item row="0" column="1"><widget class="QLineEdit" name="Text1"><property name="text"><string>old</string></property></widget></item>
            <item><widget class="QCheckBox" name="Check1"><property name="toolTip"><string>Tip</string></property>
              <property name="text"><string>Check</string></property></widget></item>
            <item><widget class="QComboBox" name="Combo1"><item><property name="text"><string>One</string></property></item></widget></item>
            <item><widget class="QPushButton" name="Command1"><property name="text"><string>&amp;Close</string></property></widget></item>
            </layout></widget></ui>)");
        file.close();
        const QList<NamedControl> ui = readUiFile(file.fileName());
        QCOMPARE(ui, sampleNames());
        QCOMPARE(differencesFromUi(sampleNames(), ui), QStringList());
        QList<NamedControl> other = sampleNames();
        other[3].className = u"QRadioButton"_s;
        other[1].name = u"Text1"_s;
        QCOMPARE(differencesFromUi(other, ui),
                 (QStringList{u"Text1 stands twice in the list"_s, u"Text1 is a QLineEdit, not a QLabel"_s,
                              u"Check1 is a QCheckBox, not a QRadioButton"_s,
                              u"lblName of the .ui file isn't in the list"_s}));
    }
};

ZEPHIRA_TEST(TstFormKit)

#include "tst_formkit.moc"
