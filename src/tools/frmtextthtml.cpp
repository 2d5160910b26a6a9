// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmtextthtml.h"

#include "core/prompts.h"
#include "tools/richtohtml.h"
#include "ui_frmtextthtml.h"

#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

const QString demonstration = u"Click on the 'convert' button to convert this richtext to HTML."_s;
const QString bodyFont = u"Arial"_s;
const QString codeFont = u"Courier New"_s;
constexpr double demonstrationSize = 10;

QTextCharFormat fontFormat(const QString &family)
{
    QTextCharFormat format;
    format.setFontFamilies(QStringList{family});
    return format;
}

CharacterFormat::Alignment alignmentOf(const QTextBlock &block)
{
    const Qt::Alignment alignment = block.blockFormat().alignment();
    if (alignment & Qt::AlignRight)
        return CharacterFormat::Alignment::Right;
    return alignment & Qt::AlignHCenter ? CharacterFormat::Alignment::Center : CharacterFormat::Alignment::Left;
}

/// The format of characters. What they don't set themselves is taken from the text as a whole, whose colour is black
/// even if a dark palette shows it light.
CharacterFormat formatOf(const QTextCharFormat &format, const QTextBlock &block)
{
    const QFont font = format.font().resolve(block.document()->defaultFont());
    const QColor colour = format.foreground().style() == Qt::NoBrush ? QColor(Qt::black) : format.foreground().color();
    return {
        .alignment = alignmentOf(block),
        .bold = font.bold(),
        .underline = font.underline(),
        .italic = font.italic(),
        .strikethrough = font.strikeOut(),
        .fontName = font.families().value(0, font.family()),
        .colour = static_cast<quint32>(colour.red() | colour.green() << 8 | colour.blue() << 16),
    };
}

/// The part of a run within the range, with line ends as the program writes them.
QString partOf(const QString &text, int position, int start, int end)
{
    const int from = std::max(start - position, 0);
    const int to = std::min<int>(end - position, static_cast<int>(text.size()));
    return to > from ? text.mid(from, to - from).replace(QChar::LineSeparator, u"\r\n"_s) : QString();
}

} // namespace

frmtextthtml::frmtextthtml(const AppContext &context, QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmtextthtml>()), m_context(context)
{
    m_ui->setupUi(this);
    showDemonstration();
    connect(m_ui->cmdConvert, &QPushButton::clicked, this,
            [this] { m_ui->txtHTML->setPlainText(RichToHTML(m_ui->rtbRichText)); });
    connect(m_ui->boldopt, &QCheckBox::clicked, this, [this](bool on) {
        QTextCharFormat bold;
        bold.setFontWeight(on ? QFont::Bold : QFont::Normal);
        format(bold);
    });
    connect(m_ui->italic, &QCheckBox::clicked, this, [this](bool on) {
        QTextCharFormat italic;
        italic.setFontItalic(on);
        format(italic);
    });
    connect(m_ui->underline, &QCheckBox::clicked, this, [this](bool on) {
        QTextCharFormat underline;
        underline.setFontUnderline(on);
        format(underline);
    });
    const auto aligns = [this](QRadioButton *option, Qt::Alignment alignment) {
        connect(option, &QRadioButton::clicked, this,
                [this, alignment] { m_ui->rtbRichText->setAlignment(alignment); });
    };
    aligns(m_ui->Option1, Qt::AlignLeft);
    aligns(m_ui->Option2, Qt::AlignHCenter);
    aligns(m_ui->Option3, Qt::AlignRight);
    connect(m_ui->Command2, &QPushButton::clicked, this, &frmtextthtml::chooseFont);
}

frmtextthtml::~frmtextthtml() = default;

QString frmtextthtml::RichToHTML(QTextEdit *richControl, int startIndex, int endIndex) const
{
    const QTextDocument &document = *richControl->document();
    // The document counts one more line end behind its last line.
    const int length = document.characterCount() - 1;
    const int end = endIndex < 0 ? length : std::min(endIndex, length);
    std::vector<FormattedRun> runs;
    for (QTextBlock block = document.findBlock(startIndex); block.isValid() && block.position() < end;
         block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            runs.push_back({partOf(fragment.text(), fragment.position(), startIndex, end),
                            formatOf(fragment.charFormat(), block)});
        }
        const int lineEnd = block.position() + block.length() - 1;
        if (lineEnd >= startIndex && lineEnd < end)
            runs.push_back({u"\r\n"_s, runs.empty() ? formatOf(block.charFormat(), block) : runs.back().format});
    }
    return richToHtml(runs);
}

void frmtextthtml::showDemonstration()
{
    QTextEdit &box = *m_ui->rtbRichText;
    QFont font(bodyFont);
    font.setPointSizeF(demonstrationSize);
    QTextCharFormat body = fontFormat(bodyFont);
    body.setFontPointSize(demonstrationSize);
    box.document()->setDefaultFont(font);
    QTextCursor cursor(box.document());
    QTextBlockFormat centred;
    centred.setAlignment(Qt::AlignHCenter);
    cursor.setBlockFormat(centred);
    cursor.insertText(demonstration, body);

    const auto mark = [&box](qsizetype start, qsizetype length, const QTextCharFormat &format) {
        QTextCursor part(box.document());
        part.setPosition(static_cast<int>(start));
        part.setPosition(static_cast<int>(start + length), QTextCursor::KeepAnchor);
        part.mergeCharFormat(format);
    };
    const auto coloured = [](Qt::GlobalColor colour) {
        QTextCharFormat format;
        format.setForeground(QColor(colour));
        return format;
    };
    const QString convert = u"convert"_s;
    const QString html = u"HTML"_s;
    QTextCharFormat blueCode = fontFormat(codeFont);
    blueCode.merge(coloured(Qt::blue));
    mark(demonstration.indexOf(convert), convert.size(), blueCode);
    QTextCharFormat underlinedCode = fontFormat(codeFont);
    underlinedCode.setFontUnderline(true);
    const qsizetype name = demonstration.indexOf(html);
    mark(name, html.size(), underlinedCode);
    mark(name, 1, coloured(Qt::red));
    mark(name + 1, 1, coloured(Qt::blue));
    mark(name + 2, 1, coloured(Qt::green));
    box.moveCursor(QTextCursor::Start);
}

void frmtextthtml::format(const QTextCharFormat &format)
{
    m_ui->rtbRichText->mergeCurrentCharFormat(format);
}

void frmtextthtml::chooseFont()
{
    const QFont now =
        m_ui->rtbRichText->currentCharFormat().font().resolve(m_ui->rtbRichText->document()->defaultFont());
    const std::optional<FontChoice> choice =
        m_context.prompts.font({now.families().value(0, now.family()), now.pointSizeF(), now.bold(), now.italic(),
                                now.strikeOut(), now.underline()});
    if (!choice)
        return;
    QTextCharFormat chosen = fontFormat(choice->name);
    chosen.setFontPointSize(choice->size);
    chosen.setFontWeight(choice->bold ? QFont::Bold : QFont::Normal);
    chosen.setFontItalic(choice->italic);
    chosen.setFontStrikeOut(choice->strikethrough);
    chosen.setFontUnderline(choice->underline);
    format(chosen);
}

} // namespace zephira
