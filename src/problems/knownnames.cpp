// SPDX-License-Identifier: GPL-3.0-or-later
#include "problems/knownnames.h"

#include <array>

namespace zephira {

namespace {

/// Attributes that each element may have: those of RDFa, those that are older or younger than the data.
constexpr std::array<QByteArrayView, 30> furtherGlobal{"about",        "anchor",        "autocorrect",
                                                       "datatype",     "datafld",       "datasrc",
                                                       "dataformatas", "elementtiming", "headingoffset",
                                                       "hidefocus",    "inlist",        "is",
                                                       "language",     "prefix",        "property",
                                                       "resource",     "rev",           "runat",
                                                       "slot",         "spellcheck",    "typeof",
                                                       "unselectable", "vocab",         "writingsuggestions",
                                                       "xmlns",        "align",         "virtualkeyboardpolicy",
                                                       "interestfor",  "fetchpriority", "popover"};

struct TagAttribute {
    QByteArrayView tag;
    QByteArrayView attribute;
};

// clang-format off: a row a line
constexpr TagAttribute furtherAttributes[] = {
    {"a", "attributionsrc"},
    {"a", "rev"},
    {"a", "urn"},
    {"audio", "controlslist"},
    {"audio", "disableremoteplayback"},
    {"body", "marginheight"},
    {"body", "marginwidth"},
    {"button", "command"},
    {"button", "commandfor"},
    {"details", "name"},
    {"dialog", "closedby"},
    {"form", "rel"},
    {"html", "manifest"},
    {"html", "version"},
    {"iframe", "allowpaymentrequest"},
    {"iframe", "allowtransparency"},
    {"iframe", "credentialless"},
    {"iframe", "loading"},
    {"iframe", "mozallowfullscreen"},
    {"iframe", "webkitallowfullscreen"},
    {"img", "border"},
    {"img", "lowsrc"},
    {"img", "name"},
    {"input", "autosave"},
    {"input", "border"},
    {"input", "capture"},
    {"input", "incremental"},
    {"input", "results"},
    {"input", "webkitdirectory"},
    {"link", "blocking"},
    {"link", "color"},
    {"link", "disabled"},
    {"link", "imagesizes"},
    {"link", "imagesrcset"},
    {"meta", "media"},
    {"ol", "compact"},
    {"script", "blocking"},
    {"script", "event"},
    {"script", "for"},
    {"script", "fetchpriority"},
    {"select", "autocomplete"},
    {"source", "height"},
    {"source", "width"},
    {"style", "blocking"},
    {"table", "height"},
    {"template", "shadowrootclonable"},
    {"template", "shadowrootdelegatesfocus"},
    {"template", "shadowrootmode"},
    {"template", "shadowrootserializable"},
    {"textarea", "autocomplete"},
    {"textarea", "dirname"},
    {"ul", "compact"},
    {"video", "controlslist"},
    {"video", "disablepictureinpicture"},
    {"video", "disableremoteplayback"},
    {"video", "playsinline"},
};
// clang-format on

constexpr std::array<QByteArrayView, 6> furtherTags{"fencedframe", "geolocation", "image", "math", "permission", "svg"};

/// Properties that only some browsers knew, or that only paper and speech know.
constexpr std::array<QByteArrayView, 43> furtherProperties{"azimuth",
                                                           "behavior",
                                                           "bookmark-label",
                                                           "bookmark-level",
                                                           "bookmark-state",
                                                           "cue",
                                                           "cue-after",
                                                           "cue-before",
                                                           "elevation",
                                                           "filter",
                                                           "float-offset",
                                                           "footnote-display",
                                                           "footnote-policy",
                                                           "hyphenate-after",
                                                           "hyphenate-before",
                                                           "hyphenate-lines",
                                                           "image-resolution",
                                                           "layout-flow",
                                                           "layout-grid",
                                                           "pause",
                                                           "pause-after",
                                                           "pause-before",
                                                           "pitch",
                                                           "pitch-range",
                                                           "play-during",
                                                           "richness",
                                                           "scrollbar-3dlight-color",
                                                           "scrollbar-arrow-color",
                                                           "scrollbar-base-color",
                                                           "scrollbar-darkshadow-color",
                                                           "scrollbar-face-color",
                                                           "scrollbar-highlight-color",
                                                           "scrollbar-shadow-color",
                                                           "scrollbar-track-color",
                                                           "speak",
                                                           "speak-header",
                                                           "speak-numeral",
                                                           "speak-punctuation",
                                                           "speech-rate",
                                                           "stress",
                                                           "string-set",
                                                           "voice-family",
                                                           "volume"};

} // namespace

KnownNames::KnownNames(std::shared_ptr<const CompletionData> data) : m_data(std::move(data))
{
    for (const DataRow *row : m_data->rows('T')) {
        m_hasTags = m_hasTags || !m_data->isOld(*row);
        QSet<QByteArrayView> &attributes = m_attributes[row->name];
        for (std::size_t i = 1; i <= row->children; ++i)
            attributes.insert(row[i].name);
    }
    for (const DataRow *row : m_data->attributesOf({}))
        m_global.insert(row->name);
    for (const DataRow *row : m_data->rows('P'))
        m_properties.insert(row->name);
    m_hasProperties = !m_properties.isEmpty();
    for (const QByteArrayView tag : furtherTags)
        m_attributes[tag];
    for (const QByteArrayView attribute : furtherGlobal)
        m_global.insert(attribute);
    for (const TagAttribute &row : furtherAttributes)
        m_attributes[row.tag].insert(row.attribute);
    for (const QByteArrayView property : furtherProperties)
        m_properties.insert(property);
}

bool KnownNames::isAttribute(QByteArrayView tag, QByteArrayView attribute) const
{
    if (m_global.contains(attribute))
        return true;
    const auto own = m_attributes.constFind(tag);
    return own != m_attributes.cend() && own->contains(attribute);
}

} // namespace zephira
