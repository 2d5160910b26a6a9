// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/inserttext.h"
#include "editor/codemax.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "search/searchpage.h"
#include "support/diskfiles.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Opens files in the editor, as the document does: their folder becomes the project's.
struct OpeningHost final : DocumentHost {
    FakeDocumentHost fake;
    CodeMax *editor = nullptr;
    bool refuses = false;

    int languageRow() const override { return fake.row; }
    QString languageText() const override { return fake.language; }
    void setLanguageRow(int newRow) override { fake.row = newRow; }
    QString projectPath() const override { return fake.project; }
    void setProjectPath(const QString &path) override { fake.project = path; }
    QString commonDialogFile() const override { return fake.dialogFile; }
    bool isModified() const override { return false; }
    void openFile(const QString &path) override
    {
        fake.opened.append(path);
        if (refuses || !editor->openFile(path))
            return;
        fake.dialogFile = path;
        fake.project = path.section(u'/', 0, -2);
    }
};

/// The page with a real editor and real files.
struct Fixture {
    QTemporaryDir folder;
    QTemporaryDir recoveryFolder;
    DiskFileStore files;
    TestContext world;
    OpeningHost host;
    RecoveryCopies recovery{recoveryFolder.path(), files, world.clock};
    QWidget window;
    CodeMax &editor = *new CodeMax({files, recovery, world.prompts}, &window);
    TextInserter inserter{editor, world.designer};
    AppContext context{editor,         inserter,    world.designer, host,        world.configuration,
                       world.settings, files,       world.prompts,  world.shell, world.clipboard,
                       world.clock,    world.forms, world.keys,     u"/app"_s};
    int codeShown = 0;
    SearchPage *page = nullptr;

    Fixture()
    {
        host.editor = &editor;
        host.fake.project = folder.path();
        page = new SearchPage({editor, context, [this] { ++codeShown; }}, &window);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&editor);
        layout->addWidget(page);
    }
    Q_DISABLE_COPY_MOVE(Fixture)

    void show()
    {
        window.resize(1000, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
    }
    QString put(const QString &name, const QByteArray &content) const
    {
        return putFile(folder.filePath(name), content);
    }
    template<typename T>
    T &child(const QString &name) const
    {
        return *page->findChild<T *>(name);
    }
    QTreeView &tree() const { return child<QTreeView>(u"treFound"_s); }
    QString state() const { return child<QLabel>(u"lblState"_s).text(); }
    void check(const QString &name) const { child<QCheckBox>(name).click(); }
    void press(const QString &name) const { child<QPushButton>(name).click(); }
    bool isEnabled(const QString &name) const { return child<QWidget>(name).isEnabled(); }

    /// Types into the field, presses Return and waits for the end.
    void search(const QString &text) const
    {
        auto &field = child<QComboBox>(u"cboSought"_s);
        field.setFocus();
        field.setEditText(text);
        QTest::keyClick(field.lineEdit(), Qt::Key_Return);
        QTRY_VERIFY(!isEnabled(u"cmdStop"_s));
    }
    void replaceWith(const QString &text) const
    {
        if (!child<QCheckBox>(u"chkReplacing"_s).isChecked())
            check(u"chkReplacing"_s);
        child<QComboBox>(u"cboReplacement"_s).setEditText(text);
    }
    void replace() const
    {
        QVERIFY(isEnabled(u"cmdReplaceChosen"_s));
        press(u"cmdReplaceChosen"_s);
        QTRY_VERIFY(!isEnabled(u"cmdStop"_s));
    }
    QModelIndex row(int file, int match = -1) const
    {
        const QModelIndex above = tree().model()->index(file, 0);
        return match < 0 ? above : tree().model()->index(match, 0, above);
    }
    /// The rows, a line each.
    QString rows() const
    {
        QStringList lines;
        for (int file = 0; file < tree().model()->rowCount(); ++file) {
            lines.append(row(file).data().toString());
            for (int match = 0; match < tree().model()->rowCount(row(file)); ++match)
                lines.append(u"  "_s + row(file, match).data().toString());
        }
        return lines.join(u'\n');
    }
};

} // namespace

class TstSearchPage final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheMatches()
    {
        Fixture f;
        f.show();
        f.put(u"a.htm"_s, "one two\ntwo");
        f.put(u"sub/b.css"_s, "  two {}");
        f.put(u"c.png"_s, "two");
        f.world.configuration.put(u"Filters"_s, u"Filters"_s, u"*.htm;*.css"_s);
        QVERIFY(!f.isEnabled(u"cmdSearch"_s));
        f.search(u"TWO"_s);
        QCOMPARE(f.rows(), u"a.htm (2 matches)\n  1: one two\n  2: two\nsub/b.css (1 match)\n  1: two {}"_s);
        QCOMPARE(f.state(), u"3 matches in 2 files, 2 files searched."_s);
        QVERIFY(f.tree().isExpanded(f.row(1)));
        QCOMPARE(f.child<QLabel>(u"lblWhere"_s).text(), u"In "_s + f.folder.path());
        f.check(u"chkCase"_s);
        f.search(u"TWO"_s);
        QCOMPARE(f.rows(), QString());
    }

    void aBadExpressionIsSaid()
    {
        Fixture f;
        f.check(u"chkExpression"_s);
        f.search(u"a("_s);
        QVERIFY(f.state().startsWith(u"The regular expression is invalid at character 3"));
    }

    void withoutAProject()
    {
        Fixture f;
        f.host.fake.project = QString::fromUtf16(noProjectPath.utf16());
        f.search(u"x"_s);
        QCOMPARE(f.state(), u"There is nothing to search in: set the project folder, or save the document."_s);
        f.host.openFile(f.put(u"a.htm"_s, "x"));
        f.host.fake.project = QString::fromUtf16(noProjectPath.utf16());
        f.search(u"x"_s);
        QCOMPARE(f.rows(), u"a.htm (1 match)\n  1: x"_s);
        QVERIFY(f.child<QLabel>(u"lblWhere"_s).text().startsWith(u"In the document's folder, "));
        f.host.fake.project = u"/missing/folder"_s;
        f.search(u"x"_s);
        QCOMPARE(f.state(), u"The folder /missing/folder doesn't exist."_s);
    }

    void takesTheSelectionOver()
    {
        Fixture f;
        f.show();
        f.editor.setText(u"a.b\r\nc"_s);
        f.editor.select({0, 0, 0, 3});
        f.page->bring();
        QCOMPARE(f.child<QComboBox>(u"cboSought"_s).currentText(), u"a.b"_s);
        QTRY_VERIFY(f.child<QComboBox>(u"cboSought"_s).hasFocus());
        QCOMPARE(f.child<QComboBox>(u"cboSought"_s).lineEdit()->selectedText(), u"a.b"_s);
        f.check(u"chkExpression"_s);
        f.page->bring();
        QCOMPARE(f.child<QComboBox>(u"cboSought"_s).currentText(), u"a\\.b"_s);
        f.editor.select({0, 1, 1, 1});
        f.page->bring();
        QCOMPARE(f.child<QComboBox>(u"cboSought"_s).currentText(), u"a\\.b"_s);
    }

    void aRowOpensItsPlace()
    {
        Fixture f;
        f.show();
        const QString path = f.put(u"sub/a.htm"_s, "\r\none \xF0\x9F\x98\x80 two");
        f.search(u"two"_s);
        f.tree().setFocus();
        f.tree().setCurrentIndex(f.row(0, 0));
        QTest::keyClick(&f.tree(), Qt::Key_Return);
        QCOMPARE(f.host.fake.opened, QStringList{path});
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 7, 1, 10}));
        QCOMPARE(f.codeShown, 1);
        QVERIFY(f.editor.hasFocus());
        // The project stays the project.
        QCOMPARE(f.host.fake.project, f.folder.path());
        f.editor.select({0, 0, 0, 0});
        Q_EMIT f.tree().doubleClicked(f.row(0));
        QCOMPARE(f.host.fake.opened.size(), 1);
        QCOMPARE(f.editor.selection(false), (CodeMaxRange{1, 7, 1, 10}));
    }

    void aRefusedFileChangesNothing()
    {
        Fixture f;
        f.put(u"a.htm"_s, "two");
        f.editor.setText(u"kept"_s);
        f.host.refuses = true;
        f.search(u"two"_s);
        Q_EMIT f.tree().doubleClicked(f.row(0, 0));
        QCOMPARE(f.editor.text(), u"kept"_s);
        QCOMPARE(f.codeShown, 0);
    }

    void theUnsavedTextIsSearched()
    {
        Fixture f;
        f.host.openFile(f.put(u"a.htm"_s, "saved"));
        f.editor.setText(u"\r\nunsaved text"_s);
        f.search(u"saved"_s);
        QCOMPARE(f.rows(), u"a.htm (1 match)\n  2: unsaved text"_s);
    }

    void replacesWhatIsChecked()
    {
        Fixture f;
        f.show();
        const QString a = f.put(u"a.htm"_s, "two\r\ntwo\r\n");
        const QString b = f.put(u"b.htm"_s, "two");
        f.replaceWith(u"2"_s);
        f.search(u"two"_s);
        QCOMPARE(f.tree().model()->index(0, 1, f.row(0)).data().toString(), u"2"_s);
        QVERIFY(!f.tree().isColumnHidden(SearchResults::ReplacedColumn));
        QCOMPARE(contentOf(a), QByteArray("two\r\ntwo\r\n"));
        // The space key unchecks the second match.
        f.tree().setFocus();
        f.tree().setCurrentIndex(f.row(0, 1));
        QTest::keyClick(&f.tree(), Qt::Key_Space);
        f.replace();
        QCOMPARE(contentOf(a), QByteArray("2\r\ntwo\r\n"));
        QCOMPARE(contentOf(b), QByteArray("2"));
        QCOMPARE(f.state(),
                 u"Replaced: 2 in 2 files. Copies of the old files are in %1."_s.arg(f.recoveryFolder.path()));
        QCOMPARE(f.row(0).data().toString(), u"a.htm (2 matches) \u2013 1 replaced"_s);
        QVERIFY(!f.isEnabled(u"cmdReplaceChosen"_s));
        QCOMPARE(QDir(f.recoveryFolder.path()).entryList({u"replaced-*"_s}).size(), 2);
    }

    void onlyWhatIsListedIsReplaced()
    {
        Fixture f;
        f.put(u"a.htm"_s, "two");
        f.replaceWith(u"2"_s);
        f.search(u"two"_s);
        QVERIFY(f.isEnabled(u"cmdReplaceChosen"_s));
        f.replaceWith(u"3"_s);
        QVERIFY(!f.isEnabled(u"cmdReplaceChosen"_s));
        f.replaceWith(u"2"_s);
        QVERIFY(f.isEnabled(u"cmdReplaceChosen"_s));
        f.check(u"chkCase"_s);
        QVERIFY(!f.isEnabled(u"cmdReplaceChosen"_s));
    }

    void failuresAreToldByFile()
    {
        Fixture f;
        const QString a = f.put(u"a.htm"_s, "two");
        f.put(u"b.htm"_s, "\xFC two");
        f.put(u"c.htm"_s, "two");
        f.replaceWith(u"\u05D0"_s);
        f.search(u"two"_s);
        putFile(a, "two, and more");
        f.replace();
        QCOMPARE(contentOf(a), QByteArray("two, and more"));
        QCOMPARE(f.row(0).data().toString(),
                 u"a.htm (1 match) \u2013 It has changed since the search and was left as it is."_s);
        QVERIFY(f.row(1).data().toString().contains(u"can't be stored as Windows-1252."));
        QCOMPARE(f.row(2).data().toString(), u"c.htm (1 match) \u2013 1 replaced"_s);
        QVERIFY(f.state().startsWith(u"Replaced: 1 in 1 files. Left as they are: 2 files; the list says why."));
    }

    void theOpenDocumentIsChangedInTheEditor()
    {
        Fixture f;
        const QString a = f.put(u"a.htm"_s, "two\n");
        f.host.openFile(a);
        f.editor.setText(u"x two\r\ntwo\r\n"_s);
        f.replaceWith(u"1\\n2"_s);
        f.check(u"chkExpression"_s);
        f.search(u"two"_s);
        f.replace();
        QCOMPARE(f.editor.text(), u"x 1\r\n2\r\n1\r\n2\r\n"_s);
        QCOMPARE(contentOf(a), QByteArray("two\n"));
        QCOMPARE(f.row(0).data().toString(), u"a.htm (2 matches) \u2013 2 replaced in the editor, not saved yet"_s);
        f.editor.undo();
        QCOMPARE(f.editor.text(), u"x two\r\ntwo\r\n"_s);
    }

    void aChangedDocumentIsLeftAlone()
    {
        Fixture f;
        f.host.openFile(f.put(u"a.htm"_s, "two"));
        f.replaceWith(u"2"_s);
        f.search(u"two"_s);
        f.editor.setText(u"a two"_s);
        f.replace();
        QCOMPARE(f.editor.text(), u"a two"_s);
        QVERIFY(f.row(0).data().toString().endsWith(u"It has changed since the search and was left as it is."));
    }

    void aDocumentOpenedOrClosedMeanwhileIsLeftAlone()
    {
        Fixture f;
        const QString a = f.put(u"a.htm"_s, "two");
        const QString b = f.put(u"b.htm"_s, "two");
        f.host.openFile(a);
        f.host.fake.project = f.folder.path();
        f.replaceWith(u"2"_s);
        f.search(u"two"_s);
        f.host.openFile(b);
        f.replace();
        QCOMPARE(contentOf(a), QByteArray("two"));
        QCOMPARE(contentOf(b), QByteArray("two"));
        QCOMPARE(f.editor.text(), u"two"_s);
        QVERIFY(f.state().contains(u"Left as they are: 2 files"));
    }

    void stops()
    {
        Fixture f;
        f.host.fake.project = u"/"_s;
        auto &field = f.child<QComboBox>(u"cboSought"_s);
        field.setEditText(u"nothing holds \u2013 this"_s);
        f.press(u"cmdSearch"_s);
        QVERIFY(f.isEnabled(u"cmdStop"_s));
        f.press(u"cmdStop"_s);
        QVERIFY(!f.isEnabled(u"cmdStop"_s));
        QVERIFY(f.state().startsWith(u"Stopped. "));
    }

    void aNewSearchEndsTheOldOne()
    {
        Fixture f;
        f.put(u"a.htm"_s, "two");
        f.host.fake.project = u"/"_s;
        f.child<QComboBox>(u"cboSought"_s).setEditText(u"nothing holds \u2013 this"_s);
        f.press(u"cmdSearch"_s);
        f.host.fake.project = f.folder.path();
        f.search(u"two"_s);
        QCOMPARE(f.rows(), u"a.htm (1 match)\n  1: two"_s);
    }

    void remembersWhatWasSought()
    {
        Fixture f;
        f.replaceWith(u"2"_s);
        f.search(u"one"_s);
        f.search(u"two"_s);
        f.search(u"one"_s);
        const auto words = [](const QComboBox &box) {
            QStringList list;
            for (int i = 0; i < box.count(); ++i)
                list.append(box.itemText(i));
            return list;
        };
        QCOMPARE(words(f.child<QComboBox>(u"cboSought"_s)), (QStringList{u"one"_s, u"two"_s}));
        QCOMPARE(words(f.child<QComboBox>(u"cboReplacement"_s)), (QStringList{u"2"_s}));
        const SearchPage other({f.editor, f.context, [] {}}, nullptr);
        QCOMPARE(words(*other.findChild<QComboBox *>(u"cboSought"_s)), (QStringList{u"one"_s, u"two"_s}));
        QCOMPARE(other.findChild<QComboBox *>(u"cboSought"_s)->currentText(), QString());
    }

    void everyControlHasAName()
    {
        const Fixture f;
        const auto controls = f.page->findChildren<QWidget *>();
        for (const QWidget *control : controls) {
            if (control->focusPolicy() == Qt::NoFocus || control->parentWidget() != f.page)
                continue;
            const QVariant caption = control->property("text");
            QVERIFY2(!control->accessibleName().isEmpty() || !caption.toString().isEmpty(),
                     qPrintable(control->objectName()));
        }
    }
};

ZEPHIRA_TEST(TstSearchPage)

} // namespace zephira

#include "tst_searchpage.moc"
