// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/iniconfiguration.h"
#include "settings/fileassociations.h"
#include "support/diskfiles.h"
#include "support/memoryfiletypes.h"
#include "support/testregistry.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// The places of the check boxes.
enum Category : std::size_t { Html, Text, Basic, Cgi, Xml, Pascal, CAndCpp, Java };

constexpr CategoryFlags none = {};

} // namespace

class TstFileAssociations final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }
    void theCategories();
    void everyTypeIsBound();
    void bindingSavesWhatWasThere();
    void htmlKeepsTheBrowsersAction();
    void givingBack();
    void givingBackPages();
    void theOtherTypesOfCAreMixedUp();
    void theActionOfScriptsIsNotFound();
    void javaStaysBound();
    void aSecondTimeChangesNothing();
    void twiceThereAndBack();
    void theOrderOfWhatIsWritten();
    void loading_data();
    void loading();
    void noRegIni();
    void aDamagedRegIniKeepsItsBytes();
    void regIniCannotBeRead();
    void regIniCannotBeWritten();
    void theStoreCannotBeRead();
    void theStoreCannotBeWritten();
    void customTypes_data();
    void customTypes();
    void theEarlierDefaultActionStays();
    void customTypesThatAreRefused_data();
    void customTypesThatAreRefused();
    void aCustomTypeThatCannotBeKept();

private:
    static CategoryFlags only(Category category)
    {
        CategoryFlags flags = {};
        flags[category] = true;
        return flags;
    }
    QString iniFile() const { return m_folder->path() + u"/reg.ini"_s; }
    QString ini(const QString &section, const QString &key) const { return ReadIni(section, key, iniFile()); }
    Result<void> apply(const CategoryFlags &ticked, const CategoryFlags &bound, const CategoryFlags &toRestore = {})
    {
        return applyCategories(ticked, bound, toRestore, m_store, m_program);
    }
    /// As the form does it: what reg.ini calls bound is bound, and what is no longer ticked is given back.
    bool choose(const CategoryFlags &ticked)
    {
        const Result<CategoryFlags> bound = boundCategories(m_program);
        CategoryFlags toRestore = {};
        for (std::size_t i = 0; i < toRestore.size(); ++i)
            toRestore[i] = !ticked[i] && bound.value()[i];
        return apply(ticked, bound.value(), toRestore).ok();
    }
    /// The default action of a type, and its command.
    QString opens(const QString &extension) const
    {
        const QString typeKey = m_store.committed(u'.' + extension);
        const QString action = m_store.committed(typeKey + u"\\shell"_s);
        return action + u": "_s + m_store.committed(typeKey + u"\\shell\\"_s + action + u"\\command"_s);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    ProgramPlace m_program;
    MemoryFileTypes m_store;
};

void TstFileAssociations::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_program = {m_folder->path(), u"/opt/zephira/zephira"_s};
    m_store = {};
}

void TstFileAssociations::theCategories()
{
    QStringList rows;
    for (const FileCategory &category : fileCategories()) {
        for (const CategoryType &type : category.types) {
            QStringList row{categoryKey(category)};
            for (const QStringView text :
                 {type.extension, type.description, type.action, type.restoredExtension, type.restoredDescription,
                  type.savedIcon, type.savedCommand, type.savedAction})
                row.append(text.toString());
            rows.append(row.join(u'|'));
        }
    }
    // clang-format off: a row a line
    QCOMPARE(rows,
             (QStringList{
                 u"HTML_Files|htm|HTML Document|Edit with Zephira|htm|HTML Document|htmico|htmexe|htmact"_s,
                 u"HTML_Files|html|HTML Document|Edit with Zephira|html|HTML Document|htmlico|htmlexe|htmlact"_s,
                 u"Text_Files|txt|Text Document|Open|txt|Text Document|txtico|txtexe|txtact"_s,
                 u"Basic_Files|bas|Basic Document|Open|bas|Basic Document|basico|basexe|basact"_s,
                 u"Basic_Files|frm|Basic Document|Open|frm|Basic Document|frmico|frmexe|frmact"_s,
                 u"Basic_Files|vbp|Basic Document|Open|vbp|Basic Document|vbpico|vbpexe|vbpact"_s,
                 u"CGI_Files|pl|CGI Document|Open|pl|CGI Document|plico|plexe|plact"_s,
                 u"CGI_Files|cgi|CGI Document|Open|cgi|CGI Document|cgiico|cgiexe|cgiact"_s,
                 u"XML_Files|xml|XML Document|Edit With Zephira.|xml|XML Document|xmlico|xmlexe|xmlact"_s,
                 u"Pascal_Files|pas|Pascal Files|Open|pas|Pascal Files|pasico|pasexe|pasact"_s,
                 u"C/C++_Files|c|C Document|open|c|C/C++ Document|cico|cexe|cact"_s,
                 u"C/C++_Files|cpp|C++ Document|Open|c|C/C++ Document|cppico|cppexe|cppact"_s,
                 u"C/C++_Files|h|Header Document|Open|h|C/C++ Document|hico|hexe|hact"_s,
                 u"Java_/_Script_Files|js|Java Script Document|Open|js|Java Script Document|jsico|jsexe|jact"_s,
                 u"Java_/_Script_Files|java|Java App Document|Open|||||"_s,
             }));
    // clang-format on
}

void TstFileAssociations::everyTypeIsBound()
{
    CategoryFlags all;
    all.fill(true);
    QVERIFY(apply(all, {}).ok());
    for (const FileCategory &category : fileCategories()) {
        QCOMPARE(ini(u"regdata"_s, categoryKey(category)), u"1"_s);
        for (const CategoryType &type : category.types) {
            const QString typeKey = type.extension.toString() + u"file"_s;
            const QString action = type.action.toString();
            const QString openKey = typeKey + u"\\shell\\"_s + QString(action).replace(u' ', u'_');
            QCOMPARE(m_store.committed(u'.' + type.extension.toString()), typeKey);
            QCOMPARE(m_store.committed(typeKey), type.description.toString());
            QCOMPARE(m_store.committed(typeKey + u"\\DefaultIcon"_s), m_folder->path() + u"/zephira.ico"_s);
            QCOMPARE(m_store.committed(openKey), u'&' + action);
            QCOMPARE(m_store.committed(openKey + u"\\command"_s), u"/opt/zephira/zephira %1"_s);
            QCOMPARE(m_store.committed(typeKey + u"\\QuickView"_s), u"*"_s);
            QVERIFY(!m_store.kept.contains(u'.' + type.extension.toString() + u"\\ShellNew"_s));
        }
    }
    QCOMPARE(opens(u"xml"_s), u"Edit_With_Zephira.: /opt/zephira/zephira %1"_s);
}

void TstFileAssociations::bindingSavesWhatWasThere()
{
    m_store.kept.setValue(u"txtfile\\shell"_s, {}, {}, u"Read"_s);
    m_store.kept.setValue(u"txtfile\\DefaultIcon"_s, {}, {}, u"page.ico"_s);
    m_store.kept.setValue(u"txtfile\\Shell\\Open\\Command"_s, {}, {}, u"notes %1"_s);
    QVERIFY(choose(only(Text)));
    QCOMPARE(ini(u"Reg"_s, u"txtexe"_s), u"notes %1"_s);
    QCOMPARE(ini(u"Reg"_s, u"txtico"_s), u"page.ico"_s);
    QCOMPARE(ini(u"Reg"_s, u"txtact"_s), u"Read"_s);
    QCOMPARE(contentOf(iniFile()).count("regdata"), 1);
    QCOMPARE(ini(u"regdata"_s, u"Text_Files"_s), u"1"_s);
    QCOMPARE(ini(u"regdata"_s, u"C/C++_Files"_s), u"0"_s);
}

void TstFileAssociations::htmlKeepsTheBrowsersAction()
{
    QVERIFY(choose(only(Html)));
    QCOMPARE(m_store.committed(u"htmfile\\shell"_s), u"Edit_with_Zephira"_s);
    QCOMPARE(m_store.committed(u"htmlfile\\shell"_s), u"opennew"_s);
    QCOMPARE(m_store.log.last(2), (QStringList{u"set htmlfile\\shell[] = opennew"_s, u"commit"_s}));
    // Only after binding: what was the default before comes back.
    QVERIFY(choose({}));
    QCOMPARE(m_store.committed(u"htmlfile\\shell"_s), QString());
    QCOMPARE(m_store.log.filter(u"opennew"_s).size(), 1);
}

void TstFileAssociations::givingBack()
{
    m_store.kept.setValue(u"pasfile\\shell"_s, {}, {}, u"Open"_s);
    m_store.kept.setValue(u"pasfile\\shell\\Open\\command"_s, {}, {}, u"/bin/pascal %1"_s);
    m_store.kept.setValue(u"pasfile\\DefaultIcon"_s, {}, {}, u"pascal.ico"_s);
    QVERIFY(choose(only(Pascal)));
    QCOMPARE(opens(u"pas"_s), u"Open: /opt/zephira/zephira %1"_s);
    m_store.kept.setValue(u".pas\\ShellNew"_s, {}, u"NullFile"_s, {});
    m_store.kept.deleteKey(u"pasfile\\QuickView"_s);

    QVERIFY(choose({}));
    QCOMPARE(opens(u"pas"_s), u"Open: /bin/pascal %1"_s);
    QCOMPARE(m_store.committed(u"pasfile\\DefaultIcon"_s), u"pascal.ico"_s);
    QCOMPARE(m_store.committed(u"pasfile"_s), u"Pascal Files"_s);
    QVERIFY(!m_store.kept.contains(u".pas\\ShellNew"_s));
    QCOMPARE(m_store.committed(u"pasfile\\QuickView"_s), u"*"_s);
    QCOMPARE(ini(u"regdata"_s, u"Pascal_Files"_s), u"0"_s);
    // Giving back saves nothing.
    QCOMPARE(ini(u"Reg"_s, u"pasexe"_s), u"/bin/pascal %1"_s);
}

void TstFileAssociations::givingBackPages()
{
    QVERIFY(choose(only(Html)));
    QVERIFY(choose({}));
    for (const QString &extension : {u"htm"_s, u"html"_s}) {
        QCOMPARE(opens(extension), u": "_s);
        QCOMPARE(m_store.committed(extension + u"file"_s), u"HTML Document"_s);
        QCOMPARE(m_store.committed(extension + u"file\\DefaultIcon"_s), QString());
    }
}

/// "c" is given back twice, the second time what was saved for "cpp".
void TstFileAssociations::theOtherTypesOfCAreMixedUp()
{
    for (const QString &extension : {u"c"_s, u"cpp"_s, u"h"_s}) {
        m_store.kept.setValue(extension + u"file\\shell"_s, {}, {}, u"Run_"_s + extension);
        m_store.kept.setValue(extension + u"file\\DefaultIcon"_s, {}, {}, extension + u".ico"_s);
    }
    QVERIFY(choose(only(CAndCpp)));
    QCOMPARE(opens(u"c"_s), u"open: /opt/zephira/zephira %1"_s);
    QVERIFY(choose({}));
    QCOMPARE(m_store.committed(u"cfile\\shell"_s), u"Run_cpp"_s);
    QCOMPARE(m_store.committed(u"cfile\\DefaultIcon"_s), u"cpp.ico"_s);
    QVERIFY(m_store.kept.contains(u"cfile\\shell\\Run_c"_s));
    QCOMPARE(m_store.committed(u"cfile"_s), u"C/C++ Document"_s);
    QCOMPARE(opens(u"cpp"_s), u"Open: /opt/zephira/zephira %1"_s);
    QCOMPARE(m_store.committed(u"cppfile"_s), u"C++ Document"_s);
    QCOMPARE(m_store.committed(u"hfile\\shell"_s), u"Run_h"_s);
    QCOMPARE(m_store.committed(u"hfile"_s), u"C/C++ Document"_s);
}

void TstFileAssociations::theActionOfScriptsIsNotFound()
{
    m_store.kept.setValue(u"jsfile\\shell"_s, {}, {}, u"Run"_s);
    m_store.kept.setValue(u"jsfile\\DefaultIcon"_s, {}, {}, u"js.ico"_s);
    QVERIFY(choose(only(Java)));
    QCOMPARE(ini(u"Reg"_s, u"jsact"_s), u"Run"_s);
    QCOMPARE(ini(u"Reg"_s, u"jact"_s), QString());
    QVERIFY(choose({}));
    QCOMPARE(m_store.committed(u"jsfile\\DefaultIcon"_s), u"js.ico"_s);
    QCOMPARE(m_store.committed(u"jsfile\\shell"_s), QString());

    // Whoever writes the other key by hand is heard.
    QVERIFY(choose(only(Java)));
    QVERIFY(WriteIni(u"Reg"_s, u"jact"_s, u"Play"_s, iniFile()));
    QVERIFY(choose({}));
    QCOMPARE(m_store.committed(u"jsfile\\shell"_s), u"Play"_s);
}

void TstFileAssociations::javaStaysBound()
{
    QVERIFY(choose(only(Java)));
    m_store.log.clear();
    QVERIFY(choose({}));
    QCOMPARE(opens(u"java"_s), u"Open: /opt/zephira/zephira %1"_s);
    QCOMPARE(opens(u"js"_s), u": "_s);
    QVERIFY(m_store.log.filter(u"java"_s).isEmpty());
}

void TstFileAssociations::aSecondTimeChangesNothing()
{
    QVERIFY(choose(only(Text)));
    const FileTypeKeys before = m_store.kept;
    const QByteArray content = contentOf(iniFile());
    m_store.log.clear();
    QVERIFY(choose(only(Text)));
    QVERIFY(m_store.kept == before);
    QCOMPARE(m_store.log, QStringList{u"commit"_s});
    QCOMPARE(contentOf(iniFile()), content);
}

/// What is left of the program's own action doesn't come back as the earlier one.
void TstFileAssociations::twiceThereAndBack()
{
    for (int i = 0; i < 3; ++i) {
        QVERIFY(choose(only(Text)));
        QCOMPARE(opens(u"txt"_s), u"Open: /opt/zephira/zephira %1"_s);
        QVERIFY(choose({}));
        QCOMPARE(opens(u"txt"_s), u": "_s);
    }
}

void TstFileAssociations::theOrderOfWhatIsWritten()
{
    CategoryFlags ticked = only(Cgi);
    ticked[Text] = true;
    QVERIFY(choose(ticked));
    QCOMPARE(m_store.log.filter(u"file[]"_s),
             (QStringList{u"set txtfile[] = Text Document"_s, u"set plfile[] = CGI Document"_s,
                          u"set cgifile[] = CGI Document"_s}));
    QStringList lines;
    const QList<QByteArray> all = contentOf(iniFile()).split('\n');
    for (const QByteArray &line : all)
        lines.append(QString::fromUtf8(line).trimmed());
    lines.removeAll(QString());
    QCOMPARE(lines,
             (QStringList{u"[Reg]"_s, u"txtexe="_s, u"txtico="_s, u"txtact="_s, u"plexe="_s, u"plico="_s, u"plact="_s,
                          u"cgiexe="_s, u"cgiico="_s, u"cgiact="_s, u"[regdata]"_s, u"HTML_Files=0"_s,
                          u"Text_Files=1"_s, u"Basic_Files=0"_s, u"CGI_Files=1"_s, u"XML_Files=0"_s,
                          u"Pascal_Files=0"_s, u"C/C++_Files=0"_s, u"Java_/_Script_Files=0"_s}));
}

void TstFileAssociations::loading_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isBound");
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("1.0") << QByteArray("1.0") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("2") << QByteArray("2") << false;
    QTest::newRow("-1") << QByteArray("-1") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("a word") << QByteArray("yes") << false;
}

void TstFileAssociations::loading()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, isBound);
    putFile(iniFile(), "[REGDATA]\nxml_files=" + value + "\n");
    const Result<CategoryFlags> bound = boundCategories(m_program);
    QVERIFY(bound.ok());
    CategoryFlags expected = {};
    expected[Xml] = isBound;
    QVERIFY(bound.value() == expected);
}

void TstFileAssociations::noRegIni()
{
    QVERIFY(boundCategories(m_program).value() == none);
    // Giving back without a file of saved values empties them.
    QVERIFY(apply({}, only(Xml), only(Xml)).ok());
    QCOMPARE(opens(u"xml"_s), u": "_s);
}

void TstFileAssociations::aDamagedRegIniKeepsItsBytes()
{
    const QByteArray damaged = "[Reg\n\xff\xfe=\nhtmexe\n]]\x01\n[regdata]\nHTML_Files\n=1\n";
    putFile(iniFile(), damaged);
    QVERIFY(boundCategories(m_program).value() == none);
    QVERIFY(choose(only(Xml)));
    QVERIFY(contentOf(iniFile()).startsWith(damaged));
    QVERIFY(boundCategories(m_program).value() == only(Xml));
}

void TstFileAssociations::regIniCannotBeRead()
{
    QVERIFY(QDir().mkpath(iniFile()));
    const Result<CategoryFlags> bound = boundCategories(m_program);
    QVERIFY(!bound.ok());
    QVERIFY2(bound.error().sentence.contains(iniFile()), qPrintable(bound.error().sentence));
    const Result<void> applied = apply(only(Text), {});
    QVERIFY(!applied.ok());
    QCOMPARE(applied.error().sentence, bound.error().sentence);
    QVERIFY(m_store.log.isEmpty());
}

void TstFileAssociations::regIniCannotBeWritten()
{
    m_program.folder = m_folder->path() + u"/gone"_s;
    const Result<void> applied = apply(only(Text), {});
    QVERIFY(!applied.ok());
    QCOMPARE(applied.error().code, Error::Code::Unwritable);
    QVERIFY(m_store.kept == FileTypeKeys());
    QVERIFY(!m_store.log.contains(u"commit"_s));
}

void TstFileAssociations::theStoreCannotBeRead()
{
    m_store.unreadable = Error{Error::Code::Malformed, u"damaged"_s};
    const Result<void> applied = apply(only(Text), {});
    QCOMPARE(applied.error().sentence, u"damaged"_s);
    QVERIFY(!QFile::exists(iniFile()));
    QCOMPARE(
        makeCustomType({.extension = u"x"_s, .description = {}, .action = u"Open"_s, .icon = {}}, m_store, m_program)
            .error()
            .sentence,
        u"damaged"_s);
}

/// What was saved is in reg.ini, and the category doesn't count as bound.
void TstFileAssociations::theStoreCannotBeWritten()
{
    m_store.kept.setValue(u"txtfile\\shell"_s, {}, {}, u"Read"_s);
    m_store.unwritable = Error{Error::Code::Unwritable, u"the disk is full"_s};
    const Result<void> applied = apply(only(Text), {});
    QCOMPARE(applied.error().sentence, u"the disk is full"_s);
    QVERIFY(boundCategories(m_program).value() == none);
    QCOMPARE(ini(u"Reg"_s, u"txtact"_s), u"Read"_s);
    QCOMPARE(m_store.committed(u"txtfile\\shell"_s), u"Read"_s);

    // The second try starts where the first one did.
    m_store.unwritable.reset();
    QVERIFY(choose(only(Text)));
    QCOMPARE(ini(u"Reg"_s, u"txtact"_s), u"Read"_s);
    QCOMPARE(opens(u"txt"_s), u"Open: /opt/zephira/zephira %1"_s);
}

void TstFileAssociations::customTypes_data()
{
    QTest::addColumn<bool>("isDefault");
    QTest::addColumn<QString>("opened");
    QTest::newRow("default") << true << u"Edit_it_now: /opt/zephira/zephira %1"_s;
    QTest::newRow("not default") << false << u": "_s;
}

void TstFileAssociations::customTypes()
{
    QFETCH(bool, isDefault);
    QVERIFY(makeCustomType({.extension = u"log"_s,
                            .description = u"A log"_s,
                            .action = u"Edit it now"_s,
                            .icon = u"/i/log.ico"_s,
                            .isDefault = isDefault},
                           m_store, m_program)
                .ok());
    QCOMPARE(m_store.committed(u".log"_s), u"logfile"_s);
    QCOMPARE(m_store.committed(u"logfile"_s), u"A log"_s);
    QCOMPARE(m_store.committed(u"logfile\\DefaultIcon"_s), u"/i/log.ico"_s);
    QCOMPARE(m_store.committed(u"logfile\\shell\\Edit_it_now"_s), u"&Edit it now"_s);
    QCOMPARE(m_store.committed(u"logfile\\shell\\Edit_it_now\\command"_s), u"/opt/zephira/zephira %1"_s);
    QTEST(opens(u"log"_s), "opened");
    // The reverse of what the categories pass.
    QVERIFY(m_store.kept.contains(u".log\\ShellNew"_s));
    QVERIFY(!m_store.kept.contains(u"logfile\\QuickView"_s));
    // Nothing is saved.
    QVERIFY(!QFile::exists(iniFile()));
}

void TstFileAssociations::theEarlierDefaultActionStays()
{
    m_store.kept.setValue(u"logfile\\Shell"_s, {}, {}, u"Read"_s);
    QVERIFY(
        makeCustomType({.extension = u"log"_s, .description = {}, .action = u"Edit"_s, .icon = {}}, m_store, m_program)
            .ok());
    QCOMPARE(m_store.committed(u"logfile\\shell"_s), u"Read"_s);
    QVERIFY(m_store.kept.contains(u"logfile\\shell\\Edit\\command"_s));
}

void TstFileAssociations::customTypesThatAreRefused_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("sentence");
    const QString extension = u"\"%1\" can't be an extension. Please enter one without a period, such as htm."_s;
    QTest::newRow("separator") << u"a/b"_s << u"Open"_s << extension.arg(u"a/b"_s);
    QTest::newRow("no extension") << QString() << u"Open"_s << extension.arg(QString());
    QTest::newRow("no action") << u"log"_s << QString() << u"\"\" can't be the name of an action."_s;
    QTest::newRow("action with a separator") << u"log"_s << u"a\\"_s << u"\"a\\\" can't be the name of an action."_s;
}

void TstFileAssociations::customTypesThatAreRefused()
{
    QFETCH(QString, extension);
    QFETCH(QString, action);
    const Result<void> made =
        makeCustomType({.extension = extension, .description = {}, .action = action, .icon = {}, .isDefault = true},
                       m_store, m_program);
    QVERIFY(!made.ok());
    QCOMPARE(made.error().code, Error::Code::Refused);
    QTEST(made.error().sentence, "sentence");
    QVERIFY(m_store.kept == FileTypeKeys());
    QVERIFY(!m_store.log.contains(u"commit"_s));
}

void TstFileAssociations::aCustomTypeThatCannotBeKept()
{
    m_store.unwritable = Error{Error::Code::Unwritable, u"the disk is full"_s};
    const Result<void> made =
        makeCustomType({.extension = u"log"_s, .description = {}, .action = u"Open"_s, .icon = {}}, m_store, m_program);
    QCOMPARE(made.error().sentence, u"the disk is full"_s);
}

ZEPHIRA_TEST(TstFileAssociations)
#include "tst_fileassociations.moc"
