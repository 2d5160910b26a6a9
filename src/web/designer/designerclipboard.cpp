// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/designerclipboard.h"

#include "web/designer/pageroundtrip.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The same markup as text/html, which only the designer reads: no other program has changed it.
const QString ownFormat = u"application/x-zephira-markup"_s;

const QMimeData *clipboardData()
{
    return QGuiApplication::clipboard()->mimeData();
}

QString textAsMarkup(const QString &text)
{
    QString markup = text.toHtmlEscaped();
    markup.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u"\n"_s, u"<br>"_s);
    return markup.replace(u"  "_s, u" &nbsp;"_s);
}

} // namespace

void copyToClipboard(const PageRoundTrip &page, const QString &markup)
{
    const QString text = page.fragmentFromEngine(markup);
    auto data = std::make_unique<QMimeData>();
    if (page.isPlain()) {
        data->setText(text);
    } else {
        data->setData(ownFormat, text.toUtf8());
        data->setHtml(text);
        data->setText(QTextDocumentFragment::fromHtml(text).toPlainText());
    }
    QGuiApplication::clipboard()->setMimeData(data.release());
}

ClipboardMarkup clipboardMarkup(const PageRoundTrip &page)
{
    const QMimeData *data = clipboardData();
    if (!data)
        return {};
    if (page.isPlain())
        return {data->text(), false};
    if (data->hasFormat(ownFormat))
        return {QString::fromUtf8(data->data(ownFormat)), false};
    if (data->hasHtml())
        return {data->html(), true};
    return {textAsMarkup(data->text()), false};
}

bool clipboardHasMarkup()
{
    const QMimeData *data = clipboardData();
    return data && (data->hasFormat(ownFormat) || data->hasHtml() || data->hasText());
}

} // namespace zephira
