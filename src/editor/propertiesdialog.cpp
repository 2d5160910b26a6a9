// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/propertiesdialog.h"

#include "editor/codemax.h"
#include "editor/editorappearance.h"
#include "editor/editormargins.h"
#include "ui_propertiesdialog.h"
#include "widgets/qtvalues.h"

#include <QPainter>
#include <QPushButton>

#include <array>

namespace zephira {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t sample[] = u"<!DOCTYPE html>\r\n"
                              "<html lang=\"en\">\r\n"
                              "<!-- A small page -->\r\n"
                              "<body class=\"home\">\r\n"
                              "  <h1>Bread &amp; roses</h1>\r\n"
                              "  <script>\r\n"
                              "    function total(price) {\r\n"
                              "      return price * 1.2 + \" euros\";\r\n"
                              "    }\r\n"
                              "  </script>\r\n"
                              "</body>\r\n"
                              "</html>\r\n";
constexpr int sampleBookmark = 4;
constexpr int sampleHighlight = 7;

struct StyleName {
    const char *name;
    int style;
};

constexpr std::array styleNames{
    StyleName{QT_TRANSLATE_NOOP("zephira::PropertiesDialog", "Normal"), NormalStyle},
    StyleName{QT_TRANSLATE_NOOP("zephira::PropertiesDialog", "Bold"), BoldStyle},
    StyleName{QT_TRANSLATE_NOOP("zephira::PropertiesDialog", "Italic"), ItalicStyle},
    StyleName{QT_TRANSLATE_NOOP("zephira::PropertiesDialog", "Bold italic"), BoldItalicStyle},
    StyleName{QT_TRANSLATE_NOOP("zephira::PropertiesDialog", "Underlined"), UnderlinedStyle},
};

} // namespace

PropertiesDialog::PropertiesDialog(CodeMax &editor, QWidget *owner)
    : QDialog(owner), m_editor(editor), m_ui(std::make_unique<Ui::PropertiesDialog>())
{
    m_ui->setupUi(this);
    m_preview = new CodeMax(editor.services(), m_ui->grpPreview);
    m_preview->setObjectName(u"preview"_s);
    m_preview->setAccessibleName(tr("Preview"));
    m_preview->setText(QString::fromUtf16(sample));
    m_preview->setLanguage(u"HTML"_s);
    m_preview->setReadOnly(true);
    m_preview->margins().toggleBookmark(sampleBookmark);
    m_preview->setHighlightedLine(sampleHighlight);
    m_ui->layoutPreview->addWidget(m_preview);

    for (const AppearanceRow &row : appearanceRows)
        m_ui->lstItems->addItem(tr(QString::fromUtf16(row.name).toUtf8().constData()));
    for (const auto [name, style] : styleNames)
        m_ui->cboStyle->addItem(tr(name), style);

    connect(m_ui->lstItems, &QListWidget::currentRowChanged, this, &PropertiesDialog::showRow);
    connect(m_ui->cmdForeground, &QPushButton::clicked, this, [this] { chooseColour(row().foreground); });
    connect(m_ui->cmdBackground, &QPushButton::clicked, this, [this] { chooseColour(row().background); });
    connect(m_ui->chkAutomatic, &QCheckBox::clicked, this, &PropertiesDialog::setAutomatic);
    connect(m_ui->cboStyle, &QComboBox::activated, this, &PropertiesDialog::setStyle);
    connect(m_ui->cboFont, &QFontComboBox::currentFontChanged, this, &PropertiesDialog::takeFont);
    connect(m_ui->spnSize, &QDoubleSpinBox::valueChanged, this, &PropertiesDialog::takeFont);
    for (const QCheckBox *box : {m_ui->chkBold, m_ui->chkItalic, m_ui->chkUnderline, m_ui->chkStrikethrough})
        connect(box, &QCheckBox::toggled, this, &PropertiesDialog::takeFont);
    connect(m_ui->spnTab, &QSpinBox::valueChanged, this, &PropertiesDialog::takeOptions);
    connect(m_ui->spnEdge, &QSpinBox::valueChanged, this, &PropertiesDialog::takeOptions);
    for (const QCheckBox *box : {m_ui->chkBlanks, m_ui->chkIndent, m_ui->chkWrap, m_ui->chkBraces, m_ui->chkWhitespace,
                                 m_ui->chkLineNumbers, m_ui->chkLeftMargin, m_ui->chkFolds, m_ui->chkCaretLine})
        connect(box, &QCheckBox::toggled, this, &PropertiesDialog::takeOptions);
    connect(m_ui->buttons, &QDialogButtonBox::clicked, this, &PropertiesDialog::clicked);
}

PropertiesDialog::~PropertiesDialog() = default;

void PropertiesDialog::bring()
{
    m_original = m_draft = settingsOf(m_editor);
    fillControls();
    showPreview();
    setModal(true);
    show();
    raise();
    activateWindow();
}

PropertiesDialog::Settings PropertiesDialog::settingsOf(CodeMax &editor)
{
    return {editor.appearance().looks(), editor.options(),       editor.displayWhitespace(),
            editor.displayLeftMargin(),  editor.lineNumbering(), editor.isCaretLineHighlighted()};
}

void PropertiesDialog::apply(CodeMax &editor, const Settings &settings)
{
    editor.appearance().setLooks(settings.looks);
    editor.setEditorFont(settings.looks.font);
    editor.setOptions(settings.options);
    editor.highlightCaretLine(settings.caretLine);
    editor.setDisplayWhitespace(settings.whitespace);
    editor.setDisplayLeftMargin(settings.leftMargin);
    editor.setLineNumbering(settings.lineNumbers);
}

void PropertiesDialog::clicked(QAbstractButton *button)
{
    switch (m_ui->buttons->standardButton(button)) {
    case QDialogButtonBox::Ok:
        accept();
        break;
    case QDialogButtonBox::Apply:
        apply(m_editor, m_draft);
        break;
    default:
        reject();
        break;
    }
}

void PropertiesDialog::accept()
{
    apply(m_editor, m_draft);
    QDialog::accept();
}

void PropertiesDialog::reject()
{
    if (settingsOf(m_editor) != m_original)
        apply(m_editor, m_original);
    QDialog::reject();
}

const AppearanceRow &PropertiesDialog::row() const
{
    return appearanceRows.at(static_cast<std::size_t>(std::max(m_ui->lstItems->currentRow(), 0)));
}

void PropertiesDialog::fillControls()
{
    m_filling = true;
    if (m_ui->lstItems->currentRow() < 0)
        m_ui->lstItems->setCurrentRow(0);
    const FontChoice &font = m_draft.looks.font;
    m_ui->cboFont->setCurrentText(font.name);
    m_ui->spnSize->setValue(font.size);
    m_ui->chkBold->setChecked(font.bold);
    m_ui->chkItalic->setChecked(font.italic);
    m_ui->chkUnderline->setChecked(font.underline);
    m_ui->chkStrikethrough->setChecked(font.strikethrough);
    m_ui->spnTab->setValue(m_draft.options.tabWidth);
    m_ui->spnEdge->setValue(m_draft.options.edgeColumn);
    m_ui->chkBlanks->setChecked(m_draft.options.tabsAsBlanks);
    m_ui->chkIndent->setChecked(m_draft.options.autoIndent);
    m_ui->chkWrap->setChecked(m_draft.options.wordWrap);
    m_ui->chkBraces->setChecked(m_draft.options.matchBraces);
    m_ui->chkFolds->setChecked(m_draft.options.foldMargin);
    m_ui->chkCaretLine->setChecked(m_draft.caretLine);
    m_ui->chkWhitespace->setChecked(m_draft.whitespace);
    m_ui->chkLineNumbers->setChecked(m_draft.lineNumbers);
    m_ui->chkLeftMargin->setChecked(m_draft.leftMargin);
    m_filling = false;
    showRow();
}

/// Shows the selected item's colours and style.
void PropertiesDialog::showRow()
{
    const AppearanceRow &shown = row();
    const auto colour = [this](int item) {
        return item < 0 ? 0 : m_draft.looks.colours.at(static_cast<std::size_t>(item));
    };
    const bool hasBackground = shown.background >= 0;
    const bool automatic = hasBackground && colour(shown.background) == automaticColour;
    paintSwatch(*m_ui->cmdForeground, colour(shown.foreground), true);
    paintSwatch(*m_ui->cmdBackground, colour(automatic ? 0 : shown.background), hasBackground);
    m_ui->cmdBackground->setEnabled(hasBackground && !automatic);
    m_ui->lblBackground->setEnabled(hasBackground && !automatic);
    m_ui->chkAutomatic->setEnabled(hasBackground);
    m_ui->chkAutomatic->setChecked(automatic);
    const bool hasStyle = shown.fontStyle >= 0;
    m_ui->cboStyle->setEnabled(hasStyle);
    m_ui->lblStyle->setEnabled(hasStyle);
    const int style = hasStyle ? m_draft.looks.styles.at(static_cast<std::size_t>(shown.fontStyle)) : 0;
    m_ui->cboStyle->setCurrentIndex(m_ui->cboStyle->findData(style));
}

void PropertiesDialog::paintSwatch(QPushButton &button, quint32 colour, bool known)
{
    const qreal ratio = button.devicePixelRatioF();
    const QSize size(48, 16);
    button.setIconSize(size);
    QPixmap swatch(size * ratio);
    swatch.setDevicePixelRatio(ratio);
    swatch.fill(Qt::transparent);
    if (known) {
        QPainter painter(&swatch);
        painter.fillRect(QRect(QPoint(), size), button.palette().color(QPalette::Mid));
        painter.fillRect(QRect(QPoint(), size).adjusted(1, 1, -1, -1), toQColor(colour));
    }
    button.setIcon(swatch);
    button.setAccessibleDescription(known ? toQColor(colour).name() : QString());
}

void PropertiesDialog::chooseColour(int item)
{
    if (item < 0)
        return;
    quint32 &colour = m_draft.looks.colours.at(static_cast<std::size_t>(item));
    const auto chosen = m_editor.prompts().colour(colour);
    if (!chosen)
        return;
    colour = *chosen;
    showRow();
    showPreview();
}

void PropertiesDialog::setAutomatic(bool on)
{
    const int item = row().background;
    if (item < 0)
        return;
    m_draft.looks.colours.at(static_cast<std::size_t>(item)) = on ? automaticColour : m_draft.looks.colours[0];
    showRow();
    showPreview();
}

void PropertiesDialog::setStyle(int index)
{
    if (row().fontStyle < 0)
        return;
    m_draft.looks.styles.at(static_cast<std::size_t>(row().fontStyle)) = m_ui->cboStyle->itemData(index).toInt();
    showPreview();
}

void PropertiesDialog::takeFont()
{
    if (m_filling)
        return;
    m_draft.looks.font = {m_ui->cboFont->currentText(),        m_ui->spnSize->value(),
                          m_ui->chkBold->isChecked(),          m_ui->chkItalic->isChecked(),
                          m_ui->chkStrikethrough->isChecked(), m_ui->chkUnderline->isChecked()};
    showPreview();
}

void PropertiesDialog::takeOptions()
{
    if (m_filling)
        return;
    EditorOptions &options = m_draft.options;
    options.tabWidth = m_ui->spnTab->value();
    options.edgeColumn = m_ui->spnEdge->value();
    options.tabsAsBlanks = m_ui->chkBlanks->isChecked();
    options.autoIndent = m_ui->chkIndent->isChecked();
    options.wordWrap = m_ui->chkWrap->isChecked();
    options.matchBraces = m_ui->chkBraces->isChecked();
    options.foldMargin = m_ui->chkFolds->isChecked();
    m_draft.caretLine = m_ui->chkCaretLine->isChecked();
    m_draft.whitespace = m_ui->chkWhitespace->isChecked();
    m_draft.lineNumbers = m_ui->chkLineNumbers->isChecked();
    m_draft.leftMargin = m_ui->chkLeftMargin->isChecked();
    showPreview();
}

void PropertiesDialog::showPreview()
{
    apply(*m_preview, m_draft);
}

} // namespace zephira
