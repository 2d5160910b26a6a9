// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

#include <array>
#include <span>
#include <vector>

namespace zephira {

/// What the validator's controls ask for.
struct TidyChoices {
    /// The names of the ticked check boxes.
    QSet<QString> ticked = {};
    QString documentType = QStringLiteral("auto");
    QString charEncoding = QStringLiteral("ascii");
    /// Whether the document is XML.
    bool isXml = false;
};

/// A check box of the validator and the options of Tidy that it sets.
struct TidyCheck {
    enum class HowSet {
        ByState,        ///< "yes" if the box is ticked, else "no"
        ByStateOrAscii, ///< the same, but always "yes" if the output is ASCII
        ByOurselves,    ///< not by Tidy, which no longer has this option
    };

    QStringView control;
    QStringView caption;
    /// Up to three names; the others are null.
    std::array<const char *, 3> options;
    HowSet howSet = HowSet::ByState;

    friend bool operator==(const TidyCheck &, const TidyCheck &) = default;
};

/// The check boxes in the order in which they are shown and their options are set.
std::span<const TidyCheck> tidyChecks();

/// The document types and character encodings to choose from; the first is chosen at the beginning.
QStringList tidyDocumentTypes();
QStringList tidyCharEncodings();

/// The box whose option Tidy no longer has: font and center tags are removed by withoutFontTags().
constexpr QStringView fontTagsCheck = u"Check7";

/// One option and its value, as Tidy reads them.
struct TidySetting {
    QByteArray name;
    QByteArray value;

    friend bool operator==(const TidySetting &, const TidySetting &) = default;
};

/// The options for one run over a text in UTF-8, in the order in which they are set. Output lines end in CR LF.
std::vector<TidySetting> tidySettings(const TidyChoices &choices);

/// The options for a run that only writes down the parsed document: what the document says is changed as little as
/// possible, and the output is UTF-8.
std::vector<TidySetting> parsingSettings(const TidyChoices &choices);

/// Text from the bytes of a run with tidySettings().
QString decodeTidied(const QByteArray &bytes, const QString &charEncoding);

/// Whether Tidy counts columns in bytes for this encoding; otherwise it counts characters.
bool countsBytes(const QString &charEncoding);

} // namespace zephira
