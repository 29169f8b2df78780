#pragma once

#include "picture.h"
#include "sheet.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace artwork {

/// The folder that takes the pictures, and what was written to it.
class Album {
public:
    /// `only`, unless empty, limits the pictures to those whose path contains it.
    Album(std::filesystem::path folder, std::string_view only) : folder_(std::move(folder)), only_(only) {}

    [[nodiscard]] bool wants(std::string_view path) const {
        return only_.empty() || path.find(only_) != std::string_view::npos;
    }
    /// Writes a picture below the folder; a failure is reported and remembered.
    void put(std::string_view path, const Picture& picture);
    void put(std::span<const Sheet> sheets);
    [[nodiscard]] bool failed() const { return failed_; }

private:
    std::filesystem::path folder_;
    std::string_view only_;
    bool failed_ = false;
};

} // namespace artwork
