// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editorfactory.h"
#include "views/pagefetcher.h"

namespace zephira {

class FormCatalogue;

namespace views {

/// Adds this folder's forms. They show texts in viewers made by `makeViewer`, and fetch pages with the fetcher from
/// `loadFetcher`.
void registerForms(FormCatalogue &catalogue, const ViewerFactory &makeViewer, const PageFetcherLoader &loadFetcher);

} // namespace views
} // namespace zephira
