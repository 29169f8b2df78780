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

} // namespace

const FileIndex::Entry* findPicture(const CheckKnowledge& knowledge, std::span<const ImageSource> sources,
                                    std::string_view name) {
    for (const ImageSource& source : sources) {
        if (const FileIndex::Entry* entry = knowledge.pictures.find(source.folder, name)) {
            return entry;
        }
    }
    return nullptr;
}

void lookUpPicture(const CheckKnowledge& knowledge, std::span<const ImageSource> sources,
                   const FieldPath& path, std::string_view name, FileFindings& out) {
    bool isKnownFolder = false;
    for (const ImageSource& source : sources) {
        isKnownFolder = isKnownFolder || knowledge.pictures.knows(source.folder);
    }
    const std::string file = std::string(name) + std::string(ImageEnding);
    const bool isMissing =
        std::any_of(knowledge.missingPictures.begin(), knowledge.missingPictures.end(),
                    [&](const std::string& missing) { return missing.ends_with("\\" + file); });
    if (name.empty() || (!isKnownFolder && !isMissing)) {
        return;
    }
    if (const FileIndex::Entry* entry = findPicture(knowledge, sources, name)) {
        if (entry->name != name) {
            out.atValue(path.text(), {.key = ck::PictureCase,
                                      .message = "the picture " + quoted(file) + " is called " +
                                                 quoted(entry->name) + " on the disk",
                                      .value = std::string(name),
                                      .expected = entry->name,
                                      .hint = "write " + quoted(entry->name + std::string(ImageEnding)),
                                      .replacement = entry->name});
        } else if (!knowledge.sizeOf(entry->path)) {
            out.atValue(path.text(), {.key = ck::BadPicture,
                                      .message = quoted(file) + " is no PNG file",
                                      .value = std::string(name)});
        }
        return;
    }
    NearestName nearest(name);
    for (const ImageSource& source : sources) {
        nearest.offerAll(knowledge.pictures.namesIn(source.folder));
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
    if (name.empty() || !knowledge.sounds.knows(SoundFolder)) {
        return;
    }
    const FileIndex::Entry* entry = knowledge.sounds.find(SoundFolder, name);
    if (entry == nullptr) {
        const NearestName nearest = NearestName(name).offerAll(knowledge.sounds.namesIn(SoundFolder));
        out.atValue(path.text(), {.key = finding_key::MissingSound,
                                  .message = "the sound " + quoted(name) + " is missing",
                                  .value = std::string(name),
                                  .expected = "a file in " + slashed(SoundFolder),
                                  .hint = nearest.hint(),
                                  .replacement = nearest.onlyName()});
    } else if (entry->name != name) {
        out.atValue(path.text(), {.key = ck::SoundCase,
                                  .message = "the sound " + quoted(name) + " is called " +
                                             quoted(entry->name) + " on the disk",
                                  .value = std::string(name),
                                  .expected = entry->name,
                                  .hint = "write " + quoted(entry->name),
                                  .replacement = entry->name});
    }
}

} // namespace varrocade
