// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/editorfactory.h"
#include "views/pagefetcher.h"

namespace zephira {

class FormCatalogue;

namespace views {

/// The catalogue's forms show texts in what `makeViewer` gives, and fetch pages through what `loadFetcher` gives.
void registerForms(FormCatalogue &catalogue, const ViewerFactory &makeViewer, const PageFetcherLoader &loadFetcher);

} // namespace views
} // namespace zephira
