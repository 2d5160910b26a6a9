// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/frmtagedit.h"

#include "core/documenthost.h"
#include "core/editingcontrol.h"
#include "core/errorstyles.h"
#include "core/languages.h"
#include "core/relativepath.h"
#include "tags/tagtext.h"
#include "ui_frmtagedit.h"
#include "ui_tagpageanchor.h"
#include "ui_tagpagebody.h"
#include "ui_tagpagecheckbox.h"
#include "ui_tagpagediv.h"
#include "ui_tagpagefont.h"
#include "ui_tagpagehidden.h"
#include "ui_tagpagehr.h"
#include "ui_tagpageimage.h"
#include "ui_tagpageradio.h"
#include "ui_tagpageselect.h"
#include "ui_tagpagesubmit.h"
#include "ui_tagpagetable.h"
#include "ui_tagpagetd.h"
#include "ui_tagpagetext.h"
#include "ui_tagpagetextarea.h"
#include "ui_tagpagetr.h"
#include "widgets/colourswatch.h"
#include "widgets/fieldlookups.h"
#include "widgets/offeredwords.h"
#include "widgets/qtvalues.h"

#include <QFontDatabase>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

struct PageRow {
    QStringView tab;
    void (*draw)(QWidget *page);
};

template<typename Page>
void draw(QWidget *page)
{
    Page().setupUi(page);
}

// In the order of tagTemplates().
constexpr PageRow pages[] = {
    {u"ANCHOR", &draw<Ui::TagPageAnchor>},
    {u"BODY", &draw<Ui::TagPageBody>},
    {u"CHECKBOX", &draw<Ui::TagPageCheckbox>},
    {u"DIV", &draw<Ui::TagPageDiv>},
    {u"FONT", &draw<Ui::TagPageFont>},
    {u"HR", &draw<Ui::TagPageHr>},
    {u"IMAGE", &draw<Ui::TagPageImage>},
    {u"RADIO", &draw<Ui::TagPageRadio>},
    {u"SELECT", &draw<Ui::TagPageSelect>},
    {u"SUBMIT", &draw<Ui::TagPageSubmit>},
    {u"TEXT AREA", &draw<Ui::TagPageTextarea>},
    {u"HIDDEN", &draw<Ui::TagPageHidden>},
    {u"TEXT", &draw<Ui::TagPageText>},
    {u"TABLE", &draw<Ui::TagPageTable>},
    {u"TD", &draw<Ui::TagPageTd>},
    {u"TR", &draw<Ui::TagPageTr>},
};

/// A swatch and the field that it belongs to.
struct ColourRow {
    int swatch;
    QStringView field;
};

constexpr ColourRow colours[] = {
    {1, u"txtLinkColor"}, {2, u"txtActivLink"}, {3, u"txtTextColor"}, {4, u"txtVisLink"}, {5, u"txtBgColor"},
    {6, u"txtColorFo"},   {7, u"txtColorHR"},   {8, u"txtBgTD"},      {9, u"txtBGTable"}, {10, u"txtBColTable"},
};

struct PictureRow {
    QStringView button;
    QStringView field;
    Question::Icon icon;
};

constexpr PictureRow pictures[] = {
    {u"cmdOpen", u"txtBGImage", Question::Icon::Information},
    {u"Command13", u"txtSourceImg", Question::Icon::None},
};

/// The font families that pages have always used, then those of the system.
QStringList fontNames()
{
    QStringList names{u"Arial"_s,   u"Courier New"_s, u"Georgia"_s, u"Times New Roman"_s, u"Trebuchet MS"_s,
                      u"Verdana"_s, u"sans-serif"_s,  u"serif"_s,   u"monospace"_s};
    const QStringList families = QFontDatabase::families();
    for (const QString &family : families) {
        if (!QFontDatabase::isPrivateFamily(family) && !names.contains(family))
            names.append(family);
    }
    return names;
}

} // namespace

frmTagEdit::frmTagEdit(const AppContext &context, QWidget *owner, std::shared_ptr<TagEditorMemory> memory)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmTagEdit>()), m_context(context), m_memory(std::move(memory))
{
    m_ui->setupUi(this);
    addPages();
    bindColours();
    bindPictures();
    offerFiles(findChild<QPushButton *>(u"browseHref"_s), findChild<QLineEdit *>(u"txtHrefAnch"_s), m_context,
               m_memory->files);
    auto *fonts = findChild<QComboBox *>(u"CoFonts"_s);
    fonts->addItems(fontNames());
    fonts->setCompleter(nullptr);
    fonts->setCurrentIndex(-1);
    offerWords(findChild<QLineEdit *>(u"txtTargetAnch"_s), {u"_blank"_s, u"_parent"_s, u"_self"_s, u"_top"_s});
    const QList<QLineEdit *> lines = findChildren<QLineEdit *>();
    for (QLineEdit *line : lines)
        line->setMaxLength(std::numeric_limits<int>::max());
    connect(m_ui->SSTab1, &QTabWidget::currentChanged, this, &frmTagEdit::pageShown);
    setPage(m_memory->page);
    pageShown(page());
    // The focus starts in the first field of the page, not on its tab.
    m_ui->SSTab1->currentWidget()->nextInFocusChain()->setFocus();
}

frmTagEdit::~frmTagEdit() = default;

int frmTagEdit::page() const
{
    return m_ui->SSTab1->currentIndex();
}

void frmTagEdit::setPage(int page)
{
    m_ui->SSTab1->setCurrentIndex(page);
}

void frmTagEdit::addPages()
{
    int number = 0;
    for (const PageRow &row : pages) {
        auto *page = new QWidget(this);
        row.draw(page);
        page->setAccessibleName(row.tab.toString());
        m_ui->SSTab1->addTab(page, row.tab.toString());
        auto *ok = page->findChild<QPushButton *>(tagTemplates()[static_cast<std::size_t>(number)].okButton.toString());
        connect(ok, &QPushButton::clicked, this, [this, number] { insertTag(number); });
        auto *cancel = page->findChild<QPushButton *>(u"Command18_%1"_s.arg(number));
        connect(cancel, &QPushButton::clicked, this, &frmTagEdit::reject);
        ++number;
    }
}

void frmTagEdit::bindColours()
{
    for (const ColourRow &row : colours) {
        auto *swatch = findChild<ColourSwatch *>(u"Picture2_%1"_s.arg(row.swatch));
        auto *field = findChild<QLineEdit *>(row.field.toString());
        swatch->follow(field);
        connect(swatch, &ColourSwatch::clicked, this, [this, swatch, field] { chooseColour(*swatch, field); });
    }
}

void frmTagEdit::bindPictures()
{
    for (const PictureRow &row : pictures) {
        auto *field = findChild<QLineEdit *>(row.field.toString());
        connect(findChild<QPushButton *>(row.button.toString()), &QPushButton::clicked, this,
                [this, field, icon = row.icon] { choosePicture(field, icon); });
    }
}

void frmTagEdit::pageShown(int page)
{
    m_memory->page = page;
    // Return in a field presses OK on the visible page.
    findChild<QPushButton *>(tagTemplates()[static_cast<std::size_t>(page)].okButton.toString())->setDefault(true);
}

TagFields frmTagEdit::fields() const
{
    TagFields fields;
    const QList<QLineEdit *> lines = findChildren<QLineEdit *>();
    for (const QLineEdit *line : lines)
        fields.texts.insert(line->objectName(), line->text());
    const QList<QComboBox *> lists = findChildren<QComboBox *>();
    for (const QComboBox *list : lists)
        fields.texts.insert(list->objectName(), list->currentText());
    const QList<QCheckBox *> boxes = findChildren<QCheckBox *>();
    for (const QCheckBox *box : boxes) {
        if (box->isChecked())
            fields.ticked.insert(box->objectName());
    }
    return fields;
}

void frmTagEdit::insertTag(int page)
{
    m_context.editor.setSelText(tagText(tagTemplates()[static_cast<std::size_t>(page)], fields()));
    accept();
}

void frmTagEdit::chooseColour(const ColourSwatch &swatch, QLineEdit *field)
{
    const QColor shown = swatch.colour();
    const std::optional<quint32> chosen = m_context.prompts.colour(shown.isValid() ? toColourNumber(shown) : 0);
    if (!chosen)
        return;
    const ColourParts parts = GetRGB(*chosen);
    m_ui->txtR->setText(QString::number(parts.red));
    m_ui->txtG->setText(QString::number(parts.green));
    m_ui->txtB->setText(QString::number(parts.blue));
    field->setText(HexColor(parts));
}

void frmTagEdit::choosePicture(QLineEdit *field, Question::Icon icon)
{
    // With an emptied box there is no question; the link fails below.
    const bool project = hasProjectText(m_context.document);
    const Question question{u"Please select a project path, if you continue, your images path will be distorted if you "
                            "continue"_s,
                            {},
                            icon,
                            Question::Buttons::OkCancel};
    if (!project && m_context.prompts.ask(question) == Answer::Cancel) {
        reject();
        return;
    }
    const QString projectPath = m_context.document.projectPath();
    const auto chosen =
        m_memory->files->choose(m_context, u"Picture"_s, u"Pictures|%1|All Files|*.*"_s.arg(picturePatterns()));
    if (!chosen)
        return;
    // Links can't be relative to an empty project path, so the field stays as it is.
    ignoringErrors({[&] { field->setText(MakeRelativePath(projectPath, *chosen)); }});
}

} // namespace zephira
