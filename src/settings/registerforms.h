// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace zephira {

class FileTypeStore;
class FormCatalogue;

namespace settings {

/// The store and the full path of the program are for the file associations; the store must outlive all forms.
void registerForms(FormCatalogue &catalogue, FileTypeStore &fileTypes, const QString &executable);

} // namespace settings
} // namespace zephira
