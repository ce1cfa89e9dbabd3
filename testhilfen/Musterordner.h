#pragma once

#include <filesystem>

/// A folder with the sample draws of all three games as of 21.11.2026, written once for the whole process and gone with
/// it. Take copies: it is shared.
const std::filesystem::path& musterordner();
