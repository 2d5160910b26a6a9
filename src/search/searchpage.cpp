// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/searchpage.h"

#include "core/appcontext.h"
#include "core/configuration.h"
#include "core/documenthost.h"
#include "core/paths.h"
#include "editor/codemax.h"
#include "files/recoverycopies.h"
#include "search/emphasisdelegate.h"
#include "search/searchreport.h"
#include "ui_searchpage.h"
#include "widgets/itemchoice.h"

#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// How often the page looks for new matches, in milliseconds.
constexpr int lookInterval = 50;
/// Files whose matches are shown without being opened by hand.
constexpr int expandedFiles = 200;

void fill(QComboBox &box, const QStringList &words)
{
    const QSignalBlocker quiet(box);
    const QString text = box.currentText();
    box.clear();
    box.addItems(words);
    box.setEditText(text);
}

/// Whether the document's file is a file that was searched, under whatever path.
bool isSameFile(const FileSignature &open, const FileSignature &searched)
{
    return open.exists && open.device == searched.device && open.inode == searched.inode;
}

bool isBelow(const QString &path, const QString &folder)
{
    return QDir::cleanPath(path).startsWith(withSeparator(QDir::cleanPath(folder)));
}

} // namespace

SearchPage::SearchPage(const Parts &parts, QWidget *parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_history(parts.context.settings)
    , m_ui(std::make_unique<Ui::SearchPage>())
    , m_results(new SearchResults(this))
{
    m_ui->setupUi(this);
    setFocusProxy(m_ui->cboSought);
    m_ui->prgRunning->hide();
    for (QComboBox *box : {m_ui->cboSought, m_ui->cboReplacement}) {
        box->setCompleter(nullptr);
        connect(box->lineEdit(), &QLineEdit::returnPressed, this, &SearchPage::search);
        connect(box, &QComboBox::editTextChanged, this, &SearchPage::updateControls);
    }
    m_ui->treFound->setModel(m_results);
    onItemChosen(*m_ui->treFound, this, [this](const QModelIndex &index) { go(index); });
    m_ui->treFound->setItemDelegate(new EmphasisDelegate(m_ui->treFound));
    m_ui->treFound->setColumnHidden(SearchResults::ReplacedColumn, true);
    connect(m_results, &SearchResults::chosenChanged, this, &SearchPage::updateControls);
    for (QCheckBox *box : {m_ui->chkCase, m_ui->chkWord, m_ui->chkExpression, m_ui->chkReplacing})
        connect(box, &QCheckBox::toggled, this, &SearchPage::updateControls);
    connect(m_ui->cmdSearch, &QPushButton::clicked, this, &SearchPage::search);
    connect(m_ui->cmdStop, &QPushButton::clicked, this, &SearchPage::stop);
    connect(m_ui->cmdReplaceChosen, &QPushButton::clicked, this, &SearchPage::startReplacing);
    connect(&m_clock, &QTimer::timeout, this, &SearchPage::look);
    readHistory();
    updateControls();
}

SearchPage::~SearchPage() = default;

void SearchPage::bring()
{
    const CodeMaxRange selected = m_parts.rt.selection(true);
    const QString seed = selected.StartLineNo == selected.EndLineNo ? m_parts.rt.selText() : QString();
    if (!seed.isEmpty())
        m_ui->cboSought->setEditText(m_ui->chkExpression->isChecked() ? QRegularExpression::escape(seed) : seed);
    updateControls();
    m_ui->cboSought->setFocus(Qt::ShortcutFocusReason);
    m_ui->cboSought->lineEdit()->selectAll();
}

/// The full path of the document's file, or "".
QString SearchPage::openPath() const
{
    return m_parts.context.document.commonDialogFile();
}

/// What the fields say. The folder is that of the project; without one, that of the document.
ProjectSearch SearchPage::wanted() const
{
    ProjectSearch search;
    search.request = {m_ui->cboSought->currentText(), m_ui->chkCase->isChecked(), m_ui->chkWord->isChecked(),
                      m_ui->chkExpression->isChecked()};
    search.replacement = m_ui->chkReplacing->isChecked() ? m_ui->cboReplacement->currentText() : QString();
    const DocumentHost &document = m_parts.context.document;
    search.folder = hasProject(document) ? document.projectPath() : folderOf(openPath());
    search.filePatterns = m_parts.context.configuration.value(Setting::FileFilters);
    return search;
}

void SearchPage::search()
{
    if (m_replacing || m_ui->cboSought->currentText().isEmpty())
        return;
    ProjectSearch search = wanted();
    if (search.folder.isEmpty()) {
        say(tr("There is nothing to search in: set the project folder, or save the document."));
        return;
    }
    if (!QDir(search.folder).exists()) {
        say(tr("The folder %1 doesn't exist.").arg(search.folder));
        return;
    }
    if (!openPath().isEmpty()) {
        search.openFile = m_parts.context.files.signature(openPath());
        search.openText = m_parts.rt.text();
    }
    Result<std::unique_ptr<SearchRun>> run = SearchRun::start(search);
    if (!run) {
        say(run.error().sentence);
        return;
    }
    if (m_run) {
        m_run->stop();
        m_ending.push_back(std::move(m_run));
    }
    m_run = std::move(run).value();
    m_history.add(SearchHistory::Kind::Searches, search.request.pattern);
    const bool replaces = m_ui->chkReplacing->isChecked();
    if (replaces)
        m_history.add(SearchHistory::Kind::Replacements, search.replacement);
    readHistory();
    m_isReplaceable = replaces;
    m_results->begin(search.folder, replaces);
    m_search = std::move(search);
    m_search.openText.clear();
    m_ui->treFound->setHeaderHidden(!replaces);
    m_ui->treFound->setColumnHidden(SearchResults::ReplacedColumn, !replaces);
    if (replaces)
        m_ui->treFound->header()->resizeSection(SearchResults::FoundColumn, m_ui->treFound->viewport()->width() / 2);
    m_clock.start(lookInterval);
    updateControls();
    look();
}

/// Shows what the threads have found meanwhile.
void SearchPage::look()
{
    std::erase_if(m_ending, [](const std::unique_ptr<SearchRun> &run) { return run->isFinished(); });
    if (m_run) {
        // Asked for first: after it has ended nothing is added any more.
        const bool isFinished = m_run->isFinished();
        showFound();
        if (isFinished)
            endSearch();
    }
    if (!m_run && m_ending.empty())
        m_clock.stop();
}

void SearchPage::showFound()
{
    std::vector<FoundFile> found = m_run->take();
    std::vector<int> orders;
    for (const FoundFile &file : found)
        orders.push_back(file.order);
    const bool isFirst = m_results->fileCount() == 0;
    m_results->add(std::move(found));
    for (int number = 0; number < std::min(m_results->fileCount(), expandedFiles); ++number) {
        if (std::ranges::find(orders, m_results->file(number).order) != orders.end())
            m_ui->treFound->expand(m_results->index(number, SearchResults::FoundColumn));
    }
    if (isFirst && m_results->fileCount() > 0)
        m_ui->treFound->setCurrentIndex(m_results->index(0, SearchResults::FoundColumn));
    say(searchProgress(m_run->counts()));
}

void SearchPage::endSearch()
{
    say(searchSummary(m_run->counts()));
    m_run.reset();
    updateControls();
}

void SearchPage::stop()
{
    if (m_run) {
        m_run->stop();
        showFound();
        say(searchSummary(m_run->counts()));
        m_ending.push_back(std::move(m_run));
    } else if (m_replacing) {
        endReplacing();
    }
    updateControls();
}

void SearchPage::go(const QModelIndex &index)
{
    const int number = SearchResults::fileOf(index);
    if (number < 0 || m_replacing)
        return;
    // A copy, because opening a file may ask, and a search may begin meanwhile.
    const FoundFile file = m_results->file(number);
    goIn(file, file.matches[static_cast<std::size_t>(std::max(SearchResults::matchOf(index), 0))]);
}

void SearchPage::goIn(const FoundFile &file, const FoundMatch &match)
{
    DocumentHost &document = m_parts.context.document;
    const FileStore &files = m_parts.context.files;
    const auto isOpen = [&] {
        const FileSignature open = openPath().isEmpty() ? FileSignature() : files.signature(openPath());
        return isSameFile(open, file.signature);
    };
    // A file that another program has replaced has another number, but the same path.
    const auto isNamed = [&] { return QDir::cleanPath(openPath()) == QDir::cleanPath(file.path); };
    if (isOpen() || isNamed()) {
        m_parts.showCode();
    } else {
        const QString project = document.projectPath();
        const bool isOfProject = hasProject(document) && isBelow(file.path, project);
        document.openFile(file.path);
        if (!isNamed())
            return;
        // Opening a file makes its folder the project's. One of the project's own files leaves it as it is.
        if (isOfProject)
            document.setProjectPath(project);
        m_parts.showCode();
    }
    m_parts.rt.select({match.line, match.column, match.endLine, match.endColumn});
    m_parts.rt.setFocus();
}

void SearchPage::startReplacing()
{
    if (m_replacing || m_run || !m_isReplaceable || m_results->chosenCount() == 0)
        return;
    m_replacing = std::make_unique<Replacing>();
    m_replacing->run = m_parts.rt.services().recovery.beginReplacing();
    m_isReplaceable = false;
    updateControls();
    QTimer::singleShot(0, this, &SearchPage::replaceNext);
}

/// Replaces in one file, and lets the window work before the next.
void SearchPage::replaceNext()
{
    if (!m_replacing)
        return;
    const auto isChosen = [&](int number) {
        return std::ranges::find(m_results->chosen(number), true) != m_results->chosen(number).end();
    };
    while (m_replacing->next < m_results->fileCount() && !isChosen(m_replacing->next))
        ++m_replacing->next;
    if (m_replacing->next >= m_results->fileCount()) {
        endReplacing();
        return;
    }
    const int number = m_replacing->next++;
    const FoundFile &file = m_results->file(number);
    const std::vector<bool> chosen = m_results->chosen(number);
    const FileSignature open = openPath().isEmpty() ? FileSignature() : m_parts.context.files.signature(openPath());
    const bool isOpen = file.isOpenDocument || isSameFile(open, file.signature)
        || (!openPath().isEmpty() && QDir::cleanPath(openPath()) == QDir::cleanPath(file.path));
    const ReplaceOrder order{m_search.request, m_search.replacement};
    const Result<void> replaced = isOpen
        ? replaceInDocument(file, chosen)
        : replaceInFile(m_parts.context.files, m_parts.rt.services().recovery, m_replacing->run, order, file, chosen);
    if (replaced) {
        const int count = static_cast<int>(std::ranges::count(chosen, true));
        m_replacing->matches += count;
        ++m_replacing->files;
        m_results->setNote(
            number, isOpen ? tr("%1 replaced in the editor, not saved yet").arg(count) : tr("%1 replaced").arg(count));
    } else {
        ++m_replacing->failures;
        m_results->setNote(number, replaced.error().sentence);
    }
    say(tr("Replacing: %1 of %2 files\u2026").arg(number + 1).arg(m_results->fileCount()));
    QTimer::singleShot(0, this, &SearchPage::replaceNext);
}

/// Replaces in the text of the editor, which may differ from the file.
Result<void> SearchPage::replaceInDocument(const FoundFile &file, const std::vector<bool> &chosen)
{
    CodeMax &rt = m_parts.rt;
    const FileSignature open = openPath().isEmpty() ? FileSignature() : m_parts.context.files.signature(openPath());
    if (!isSameFile(open, file.signature) || !file.isOpenDocument)
        return Error{Error::Code::Refused, tr("It was opened or closed since the search and was left as it is.")};
    if (rt.isReadOnly())
        return Error{Error::Code::Refused, tr("It is read-only in the editor.")};
    m_parts.showCode();
    Result<TextChanges> changes =
        replacementsIn(rt.text(), {m_search.request, m_search.replacement}, file.matches, chosen);
    if (!changes)
        return changes.error();
    TextChanges converted = std::move(changes).value();
    for (TextChange &change : converted)
        change.text = withLineEnds(std::move(change.text), rt.typedLineEnds());
    rt.changeText(converted);
    return {};
}

void SearchPage::endReplacing()
{
    const std::unique_ptr<Replacing> done = std::move(m_replacing);
    m_results->endReplacing();
    QString sentence = tr("Replaced: %1 in %2 files.").arg(done->matches).arg(done->files);
    if (done->failures > 0)
        sentence += u' ' + tr("Left as they are: %1 files; the list says why.").arg(done->failures);
    if (done->files > 0)
        sentence += u' ' + tr("Copies of the old files are in %1.").arg(m_parts.rt.services().recovery.folder());
    say(sentence);
    updateControls();
}

void SearchPage::updateControls()
{
    const bool replaces = m_ui->chkReplacing->isChecked();
    const bool busy = m_run || m_replacing;
    m_ui->cboReplacement->setEnabled(replaces);
    m_ui->cmdSearch->setEnabled(!m_replacing && !m_ui->cboSought->currentText().isEmpty());
    m_ui->cmdStop->setEnabled(busy);
    m_ui->prgRunning->setVisible(busy);
    // What is listed is replaced, and nothing else: after a change of the fields it must be listed anew.
    const ProjectSearch fields = wanted();
    const bool same = fields.request == m_search.request && fields.replacement == m_search.replacement && replaces;
    m_ui->cmdReplaceChosen->setEnabled(m_isReplaceable && !busy && same && m_results->chosenCount() > 0);
    const bool hasFolder = !fields.folder.isEmpty();
    m_ui->lblWhere->setText(!hasFolder ? tr("No project folder is set")
                                : hasProject(m_parts.context.document)
                                ? tr("In %1").arg(fields.folder)
                                : tr("In the document's folder, %1").arg(fields.folder));
    m_ui->lblWhere->setToolTip(hasFolder ? tr("%1\nFiles: %2").arg(fields.folder, fields.filePatterns) : QString());
}

void SearchPage::readHistory()
{
    fill(*m_ui->cboSought, m_history.words(SearchHistory::Kind::Searches));
    fill(*m_ui->cboReplacement, m_history.words(SearchHistory::Kind::Replacements));
}

void SearchPage::say(const QString &sentence)
{
    m_ui->lblState->setText(sentence);
}

} // namespace zephira
