// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace zephira {

class FormCatalogue;
struct FtpClient;

namespace ftp {

/// Adds this folder's forms, which share the client.
void registerForms(FormCatalogue &catalogue, const std::shared_ptr<FtpClient> &client);

} // namespace ftp

} // namespace zephira
