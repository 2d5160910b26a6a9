// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/result.h"

#include <QString>

#include <array>
#include <span>

namespace zephira {

class FileTypeStore;

// The types of files that this program can take over. What their keys held before is saved in reg.ini in the program
// folder, with which categories are taken over, so that each can be given back.

/// A type of a category.
struct CategoryType {
    QStringView extension;
    QStringView description;
    QStringView action;

    /// What giving back writes: the extension whose type is written ("" if the type isn't given back), its description,
    /// and the keys of reg.ini with the saved icon, command and action. These aren't always those that were saved.
    QStringView restoredExtension;
    QStringView restoredDescription;
    QStringView savedIcon;
    QStringView savedCommand;
    QStringView savedAction;
};

struct FileCategory {
    QStringView caption;
    std::span<const CategoryType> types;
};

inline constexpr std::size_t fileCategoryCount = 8;

/// In the order of their check boxes.
const std::array<FileCategory, fileCategoryCount> &fileCategories();

/// The key of reg.ini that tells whether a category is bound.
QString categoryKey(const FileCategory &category);

/// One flag for each category.
using CategoryFlags = std::array<bool, fileCategoryCount>;

/// Where the program is.
struct ProgramPlace {
    /// The program folder, without a trailing separator.
    QString folder;
    /// The full path of the program itself.
    QString executable;

    QString icon() const;
    /// The command that opens a file with the program.
    QString command() const;
};

/// Which categories reg.ini calls bound; none if there is no such file. Fails if it can't be read.
Result<CategoryFlags> boundCategories(const ProgramPlace &program);

/// Binds the categories that are ticked and weren't bound, gives back those with the flag `toRestore`, and notes in
/// reg.ini what is ticked. On failure the store has not changed, and nothing that was saved earlier is lost.
Result<void> applyCategories(const CategoryFlags &ticked, const CategoryFlags &bound, const CategoryFlags &toRestore,
                             FileTypeStore &store, const ProgramPlace &program);

/// What the user fills in for a type of their own.
struct CustomType {
    QString extension;
    QString description;
    QString action;
    QString icon;
    /// Whether the new action becomes the type's default one.
    bool isDefault = false;
};

/// Makes a type that this program opens. Fails with Code::Refused if the extension or the name of the action isn't
/// allowed; on any failure nothing has changed.
Result<void> makeCustomType(const CustomType &type, FileTypeStore &store, const ProgramPlace &program);

} // namespace zephira
