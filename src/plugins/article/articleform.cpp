// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/article/articleform.h"

#include "ui_articleform.h"

#include <QLocale>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The languages that the list offers; others can be typed.
constexpr QStringView offeredLanguages[] = {
    u"en", u"ar", u"cs", u"da", u"de", u"el", u"es", u"fi", u"fr", u"he", u"hi", u"hu", u"it", u"ja",
    u"ko", u"nb", u"nl", u"pl", u"pt", u"ro", u"ru", u"sv", u"th", u"tr", u"uk", u"vi", u"zh",
};

/// The English name of the language, to check the tag by; empty if it isn't known.
QString languageName(const QString &tag)
{
    const QLocale::Language language = QLocale(tag.trimmed()).language();
    return language == QLocale::C ? QString() : QLocale::languageToString(language);
}

} // namespace

ArticleForm::ArticleForm(QWidget *owner) : QDialog(owner), m_ui(std::make_unique<Ui::ArticleForm>())
{
    m_ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    for (const QStringView language : offeredLanguages)
        m_ui->cboLanguage->addItem(language.toString());
    m_ui->cboLanguage->setCurrentText(u"en"_s);

    QPushButton *ok = m_ui->buttons->button(QDialogButtonBox::Ok);
    ok->setObjectName(u"cmdOK"_s);
    m_ui->buttons->button(QDialogButtonBox::Cancel)->setObjectName(u"cmdCancel"_s);
    const auto update = [this, ok] {
        ok->setEnabled(isComplete(article()));
        m_ui->lblLanguageName->setText(languageName(m_ui->cboLanguage->currentText()));
    };
    connect(m_ui->txtTitle, &QLineEdit::textChanged, this, update);
    connect(m_ui->cboLanguage, &QComboBox::currentTextChanged, this, update);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    update();
}

ArticleForm::~ArticleForm() = default;

Article ArticleForm::article() const
{
    return {m_ui->txtTitle->text(), m_ui->cboLanguage->currentText(), m_ui->txtDescription->toPlainText()};
}

} // namespace zephira
