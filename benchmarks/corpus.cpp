#include "corpus.h"

#include "data/reading/unit_reader.h"
#include "platform/file_operations.h"
#include "tools/asset_files.h"
#include "tools/references.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>

#include <pugixml.hpp>

namespace varrocade::benchmarks {

namespace {

std::vector<CorpusFile> readSample() {
    std::vector<CorpusFile> files;
    for (const Category category : AllCategories) {
        const std::string folder = categoryFolder("sample\\", category);
        std::vector<std::string> names;
        listFiles(folder, DataFileEnding, names);
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) {
            CorpusFile file{category, {}, name.substr(0, name.size() - DataFileEnding.size())};
            if (readWholeFile(folder + name, file.content)) {
                files.push_back(std::move(file));
            }
        }
    }
    if (files.empty()) {
        std::fputs("no sample/ here: run the benchmarks in the project's folder\n", stderr);
        std::exit(1);
    }
    return files;
}

const std::vector<CorpusFile>& sample() {
    static const std::vector<CorpusFile> files = readSample();
    return files;
}

/// The same file with other digits in its numbers, so that no two files are alike.
std::string varied(std::string content, std::mt19937& random) {
    bool inText = false;
    for (std::size_t i = 0; i < content.size(); ++i) {
        const char c = content[i];
        inText = c == '>' || (inText && c != '<');
        const bool isInNumber = inText && c >= '1' && c <= '9' && content[i - 1] != '_';
        if (isInNumber) {
            content[i] = static_cast<char>('1' + std::uniform_int_distribution<int>(0, 8)(random));
        }
    }
    return content;
}

bool isXml(const std::string& content) {
    pugi::xml_document document;
    return static_cast<bool>(document.load_buffer(content.data(), content.size(), pugi::parse_default));
}

bool isListEntry(std::string_view line) {
    const std::size_t tabs = line.find_first_not_of('\t');
    line.remove_prefix(tabs == std::string_view::npos ? line.size() : tabs);
    return line.starts_with("<ammo><for>") || line.starts_with("<weapon><type>") ||
           line.starts_with("<type><flavour>");
}

/// The file with its lines of weapons and ammunition repeated until it is `factor` times as long.
std::string grown(const std::string& content, std::size_t factor) {
    std::vector<std::string_view> lines;
    std::size_t entryBytes = 0;
    for (std::size_t at = 0; at < content.size();) {
        const std::size_t end = std::min(content.find('\n', at), content.size() - 1) + 1;
        lines.push_back(std::string_view(content).substr(at, end - at));
        entryBytes += isListEntry(lines.back()) ? end - at : 0;
        at = end;
    }
    const std::size_t repeats = entryBytes == 0 ? 0 : (factor - 1) * content.size() / entryBytes;
    std::string out;
    for (const std::string_view line : lines) {
        out += line;
        for (std::size_t i = 0; i < repeats && isListEntry(line); ++i) {
            out += line;
        }
    }
    return out;
}

template <typename Accepts>
void append(std::vector<CorpusFile>& files, std::size_t count, std::size_t factor, Accepts accepts) {
    std::mt19937 random(static_cast<std::mt19937::result_type>(count));
    std::vector<const CorpusFile*> models;
    for (const CorpusFile& file : sample()) {
        if (accepts(file)) {
            models.push_back(&file);
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        const CorpusFile& model = *models[i % models.size()];
        files.push_back({model.category, grown(varied(model.content, random), factor)});
    }
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// Gives each picture that a unit names a number behind its name, and tells where they are.
void numberPictures(CorpusFile& file, const std::string& number, std::vector<CorpusPicture>& pictures) {
    static AssetFiles files({.program = "sample\\"});
    Diagnostics diagnostics;
    const SquadRecord unit = readUnit(file.content, file.name, diagnostics);
    std::set<std::string> numbered;
    forEachReference(unit, [&](const Reference& reference) {
        const AssetFile* model = files.find(reference);
        const bool isOfUnit = reference.kind == ReferenceKind::Picture && model != nullptr;
        if (isOfUnit && numbered.insert(model->below()).second) {
            const std::string name(reference.name);
            for (const std::string_view ending : {"<", ".png<"}) {
                replaceAll(file.content, ">" + name + std::string(ending),
                           ">" + name + number + std::string(ending));
            }
            pictures.push_back({std::string(model->folder) + name + number + ".png", model->below()});
        }
    });
}

std::filesystem::path onDisk(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

} // namespace

std::vector<CorpusFile> wellFormedUnits(std::size_t count) {
    std::vector<CorpusFile> files;
    append(files, count, 1,
           [](const CorpusFile& file) { return file.category != Category::Weapons && isXml(file.content); });
    return files;
}

std::vector<CorpusFile> gameFiles(std::size_t units, std::size_t weapons, std::size_t factor) {
    std::vector<CorpusFile> files;
    append(files, units, factor, [](const CorpusFile& file) { return file.category != Category::Weapons; });
    append(files, weapons, factor, [](const CorpusFile& file) { return file.category == Category::Weapons; });
    return files;
}

std::vector<CorpusFile> namedCopies(std::size_t units, std::size_t weapons,
                                    std::vector<CorpusPicture>* pictures) {
    std::vector<CorpusFile> files;
    const auto add = [&](std::size_t count, bool isOfWeapons, std::string_view nameTag) {
        std::vector<const CorpusFile*> models;
        for (const CorpusFile& file : sample()) {
            if ((file.category == Category::Weapons) == isOfWeapons) {
                models.push_back(&file);
            }
        }
        for (std::size_t i = 0; i < count; ++i) {
            CorpusFile file = *models[i % models.size()];
            const std::size_t end = file.content.find(nameTag);
            if (i >= models.size() && end != std::string::npos) {
                const std::string number = "_" + std::to_string(i);
                file.name += number;
                file.content.insert(end, number);
                if (pictures != nullptr && !isOfWeapons) {
                    numberPictures(file, number, *pictures);
                }
            }
            files.push_back(std::move(file));
        }
    };
    add(units, false, "</long_name>");
    add(weapons, true, "</name>");
    return files;
}

FilesOnDisk::FilesOnDisk(const std::vector<CorpusFile>& files) {
    std::random_device random;
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("varrocade-benchmark-" + std::to_string(random()));
    folder_ = folder.string();
    for (const Category category : AllCategories) {
        std::filesystem::create_directories(folder / "Data" / categoryName(category));
    }
    for (const CorpusFile& file : files) {
        const std::string name = file.name.empty() ? std::to_string(files_.size()) : file.name;
        const std::string path = (folder / "Data" / categoryName(file.category) / (name + ".txt")).string();
        std::ofstream(path, std::ios::binary) << file.content;
        files_.push_back({file.category, path});
    }
}

void FilesOnDisk::addAssets() const {
    for (const char* folder : {"Images", "Sounds"}) {
        std::filesystem::copy(std::filesystem::path("sample") / folder,
                              std::filesystem::path(folder_) / folder,
                              std::filesystem::copy_options::recursive);
    }
}

void FilesOnDisk::addPictures(const std::vector<CorpusPicture>& pictures) const {
    for (const CorpusPicture& picture : pictures) {
        std::filesystem::copy_file(onDisk("sample\\" + picture.model), onDisk(base() + picture.file));
    }
}

FilesOnDisk::~FilesOnDisk() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

} // namespace varrocade::benchmarks
