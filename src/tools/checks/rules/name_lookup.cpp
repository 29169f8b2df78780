#include "tools/checks/rules/name_lookup.h"

#include "data/finding_text.h"
#include "data/format/texts.h"
#include "data/unit/image_names.h"
#include "tools/checks/engine/check_rules.h"
#include "tools/checks/engine/nearest_name.h"

#include <algorithm>
#include <string>

namespace varrocade {

namespace {

namespace ck = check_key;

/// "Images/Units/": as people write paths.
std::string slashed(std::string_view folder) {
    std::string text(folder);
    for (char& c : text) {
        c = c == '\\' ? '/' : c;
    }
    return text;
}

std::string pictureFile(std::string_view name) {
    return std::string(name) + std::string(ImageEnding);
}

/// The name that finds a file, in the letter case of the disk; folders before it stay as they are written.
std::string nameOnDisk(const AssetFile& file, std::string_view name) {
    return std::string(name.substr(0, name.find_last_of("\\/") + 1)) + std::string(file.stem());
}

/// Whether that is the name already.
bool isNameOnDisk(const AssetFile& file, std::string_view name) {
    return name.substr(name.find_last_of("\\/") + 1) == file.stem();
}

} // namespace

const AssetFile* findPicture(const CheckKnowledge& knowledge, std::span<const ImageSource> sources,
                             std::string_view name) {
    for (const ImageSource& source : sources) {
        if (const AssetFile* file = knowledge.files.find(source.folder, name, ImageEnding)) {
            return file;
        }
    }
    return nullptr;
}

void lookUpPicture(const CheckKnowledge& knowledge, std::span<const ImageSource> sources,
                   const FieldPath& path, std::string_view name, FileFindings& out) {
    if (name.empty()) {
        return;
    }
    if (const AssetFile* picture = findPicture(knowledge, sources, name)) {
        if (!isNameOnDisk(*picture, name)) {
            const std::string real = nameOnDisk(*picture, name);
            out.atValue(path.text(), {.key = ck::PictureCase,
                                      .message = "the picture " + quoted(pictureFile(name)) + " is called " +
                                                 quoted(real) + " on the disk",
                                      .value = std::string(name),
                                      .expected = real,
                                      .hint = "write " + quoted(pictureFile(real)),
                                      .replacement = real});
        } else if (!knowledge.sizeOf(*picture)) {
            out.atValue(path.text(), {.key = ck::BadPicture,
                                      .message = quoted(pictureFile(name)) + " is no PNG file",
                                      .value = std::string(name)});
        }
        return;
    }
    const std::string file = pictureFile(name);
    const bool isKnownFolder = std::any_of(sources.begin(), sources.end(), [&](const ImageSource& source) {
        return knowledge.files.hasFolder(source.folder, ImageEnding);
    });
    const bool isMissing =
        std::any_of(knowledge.missingPictures.begin(), knowledge.missingPictures.end(),
                    [&](const std::string& missing) { return missing.ends_with("\\" + file); });
    if (!isKnownFolder && !isMissing) {
        return;
    }
    NearestName nearest(name);
    for (const ImageSource& source : sources) {
        nearest.offerAll(knowledge.files.stems(source.folder, ImageEnding));
    }
    out.atValue(path.text(), {.key = finding_key::MissingPicture,
                              .message = "the picture " + quoted(file) + " is missing",
                              .value = std::string(name),
                              .expected = "a file in " + slashed(sources.front().folder),
                              .hint = nearest.hint(),
                              .replacement = nearest.onlyName()});
}

void lookUpSound(const CheckKnowledge& knowledge, const FieldPath& path, std::string_view name,
                 FileFindings& out) {
    if (name.empty() || !knowledge.files.hasFolder(SoundFolder, SoundEnding)) {
        return;
    }
    const AssetFile* sound = knowledge.files.find(SoundFolder, name, SoundEnding);
    if (sound == nullptr) {
        const NearestName nearest =
            NearestName(name).offerAll(knowledge.files.stems(SoundFolder, SoundEnding));
        out.atValue(path.text(), {.key = finding_key::MissingSound,
                                  .message = "the sound " + quoted(name) + " is missing",
                                  .value = std::string(name),
                                  .expected = "a file in " + slashed(SoundFolder),
                                  .hint = nearest.hint(),
                                  .replacement = nearest.onlyName()});
    } else if (!isNameOnDisk(*sound, name)) {
        const std::string real = nameOnDisk(*sound, name);
        out.atValue(path.text(),
                    {.key = ck::SoundCase,
                     .message = "the sound " + quoted(name) + " is called " + quoted(real) + " on the disk",
                     .value = std::string(name),
                     .expected = real,
                     .hint = "write " + quoted(real),
                     .replacement = real});
    }
}

} // namespace varrocade
