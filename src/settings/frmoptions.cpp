// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/frmoptions.h"

#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/itemroles.h"
#include "core/paths.h"
#include "core/prompts.h"
#include "settings/keypage.h"
#include "settings/presetpicture.h"
#include "ui_frmoptions.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// A node of the tree below one of its roots, and the page that it shows.
struct Page {
    QStringView root;
    QStringView text;
    QStringView key;
    QGroupBox *Ui::frmOptions::*frame;
};

constexpr QStringView display = u" - Display & Feel - ";
constexpr QStringView others = u" - Others - ";

constexpr Page pages[] = {
    {display, u"Colors", u"Colors", &Ui::frmOptions::frcolors},
    {display, u"Font Styles", u"Font Styles", &Ui::frmOptions::frcolors},
    {display, u"Fonts", u"Fonts", &Ui::frmOptions::frcolors},
    {display, u"Display Options", u"Display Options", &Ui::frmOptions::frdisplayoptions},
    {display, u"Appearance", u"Appearance", &Ui::frmOptions::frappearance},
    {others, u"Project Explorer Filters", u"Filters", &Ui::frmOptions::frfilters},
    {others, u"Start-Up Options", u"startup", &Ui::frmOptions::frstartup},
    {others, u"Program Paths", u"paths", &Ui::frmOptions::frpaths},
    {others, u"Keyboard", u"Keyboard", &Ui::frmOptions::frkeyboard},
};

} // namespace

frmOptions::frmOptions(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmOptions>()), m_context(context)
{
    m_ui->setupUi(this);
    addPresets();
    addPages();
    m_keys = std::make_unique<KeyPage>(*m_ui, context.keys);
    show(loadOptions(context.configuration, context.settings));

    connect(m_ui->cmdOK, &QPushButton::clicked, this, [this] {
        if (save())
            accept();
    });
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmOptions::save);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmOptions::reject);
    connect(m_ui->Command1, &QPushButton::clicked, this,
            [this] { m_context.editor.executeCmd(EditorCommand::PropertiesDialog); });
    connect(m_ui->Command3, &QPushButton::clicked, this, &frmOptions::chooseBrowser);
    connect(m_ui->Command4, &QPushButton::clicked, this, &frmOptions::chooseServerRoot);
}

frmOptions::~frmOptions() = default;

void frmOptions::addPages()
{
    QTreeWidget *tree = m_ui->TreeView1;
    connect(tree, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem *node) { showPage(node ? node->data(0, KeyRole).toString() : QString()); });
    QFont heading = tree->font();
    heading.setBold(true);
    const auto giveRoom = [](QTreeWidgetItem *node, const QFont &font) {
        const QFontMetrics metrics(font);
        node->setFont(0, font);
        node->setSizeHint(0, {metrics.horizontalAdvance(node->text(0)) + metrics.height(), metrics.height() * 3 / 2});
    };
    QTreeWidgetItem *root = nullptr;
    for (const Page &page : pages) {
        if (!root || root->text(0) != page.root) {
            root = new QTreeWidgetItem(tree, {page.root.toString()});
            giveRoom(root, heading);
            root->setExpanded(true);
        }
        auto *node = new QTreeWidgetItem(root, {page.text.toString()});
        giveRoom(node, tree->font());
        node->setData(0, KeyRole, page.key.toString());
    }
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    // The list is as wide as its longest entry; the entries, as wide as the list.
    tree->header()->setStretchLastSection(false);
    tree->resizeColumnToContents(0);
    tree->setFixedWidth(tree->columnWidth(0) + 2 * tree->frameWidth() + tree->indentation());
    tree->header()->setStretchLastSection(true);
}

/// A root has no page of its own; the page of the colours shows instead.
void frmOptions::showPage(const QString &key)
{
    const auto page = std::ranges::find(pages, key, [](const Page &each) { return each.key; });
    m_ui->pages->setCurrentWidget(m_ui.get()->*(page == std::end(pages) ? &Ui::frmOptions::frcolors : page->frame));
    showPreset();
}

void frmOptions::addPresets()
{
    QListWidget *list = m_ui->lstpresets;
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QFontMetrics metrics(font);
    list->setIconSize({metrics.horizontalAdvance(u'0') * 35, metrics.height() * 3 / 2});
    for (const ColourPreset &preset : colourPresets()) {
        auto *entry = new QListWidgetItem(preset.name.toString(), list);
        // What ships has other colours on a dark desktop, and then its place is left empty.
        QPixmap picture = presetPicture(preset, font, list->iconSize(), devicePixelRatioF());
        if (preset.colours == shippedColours && palette().color(QPalette::Base).lightness() < 128)
            picture.fill(Qt::transparent);
        entry->setIcon(picture);
    }
    connect(list, &QListWidget::itemSelectionChanged, this, &frmOptions::usePreset);
}

/// Selects the preset that the control shows. The control's own dialog may have changed its colours meanwhile.
void frmOptions::showPreset()
{
    const QSignalBlocker quiet(m_ui->lstpresets);
    if (const auto shown = shownPreset(m_context.editor))
        m_ui->lstpresets->setCurrentRow(*shown);
    else
        m_ui->lstpresets->clearSelection();
}

void frmOptions::usePreset()
{
    const QList<QListWidgetItem *> chosen = m_ui->lstpresets->selectedItems();
    if (chosen.isEmpty())
        return;
    const auto row = static_cast<std::size_t>(m_ui->lstpresets->row(chosen.first()));
    const ColourPreset &preset = colourPresets()[row];
    m_unsaved = {m_unsaved ? m_unsaved->before : coloursOf(m_context.editor), &preset};
    setColours(m_context.editor, preset.colours);
}

void frmOptions::reject()
{
    if (m_unsaved)
        takeBackPreset(m_context.editor, *m_unsaved->preset, m_unsaved->before);
    QDialog::reject();
}

std::array<QLineEdit *, 6> frmOptions::customTabFields() const
{
    return {m_ui->c1path, m_ui->c2path, m_ui->c3path, m_ui->c4path, m_ui->c5path, m_ui->c6path};
}

void frmOptions::show(const Options &options)
{
    m_ui->Text1->setText(options.filters);
    m_ui->chkHighlight->setChecked(options.highlightLine);
    m_ui->chkLine->setChecked(options.lineNumbers);
    m_ui->chkLeft->setChecked(options.leftMargin);
    m_ui->chkWhite->setChecked(options.whitespace);
    m_ui->chkSel->setChecked(options.selectionBounds);
    const auto fields = customTabFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i]->setText(options.customTabs[i]);
    m_ui->iepath->setText(options.browserPath);
    m_ui->rootpath->setText(options.serverRoot);
    m_ui->Check1->setChecked(options.showTips);
    m_ui->Check2->setChecked(options.startDialog);
    (options.treeAtProject ? m_ui->Option1 : m_ui->Option2)->setChecked(true);
}

Options frmOptions::shown() const
{
    Options options;
    options.filters = m_ui->Text1->text();
    options.highlightLine = m_ui->chkHighlight->isChecked();
    options.lineNumbers = m_ui->chkLine->isChecked();
    options.leftMargin = m_ui->chkLeft->isChecked();
    options.whitespace = m_ui->chkWhite->isChecked();
    options.selectionBounds = m_ui->chkSel->isChecked();
    const auto fields = customTabFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
        options.customTabs[i] = fields[i]->text();
    options.browserPath = m_ui->iepath->text();
    options.serverRoot = m_ui->rootpath->text();
    options.showTips = m_ui->Check1->isChecked();
    options.treeAtProject = m_ui->Option1->isChecked();
    return options;
}

bool frmOptions::save()
{
    Result<void> saved = saveOptions(shown(), m_context.editor, m_context.configuration, m_context.settings);
    if (saved) {
        m_unsaved.reset();
        saved = m_keys->save();
    }
    if (!saved)
        tellError(m_context.prompts, saved.error(), windowTitle());
    return saved.ok();
}

void frmOptions::chooseBrowser()
{
    const auto chosen = m_context.prompts.file(
        {.title = u"Browser Path"_s, .filter = u"All Files (*.*)|*.*"_s, .fileName = m_ui->iepath->text()});
    if (chosen)
        m_ui->iepath->setText(*chosen);
}

void frmOptions::chooseServerRoot()
{
    if (const auto chosen = m_context.prompts.folder(u"Browse for Root Dir"_s, m_ui->rootpath->text()))
        m_ui->rootpath->setText(withSeparator(*chosen));
}

} // namespace zephira
