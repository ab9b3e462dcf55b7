// The binary image and the `.ini` file.
#include "rows.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>

#include <ini.h>

#include <qv_database_c/database_catalog.h>

namespace qv::benchmark {
namespace {

/// A record and its place in the image.
struct Part {
    std::vector<char> record;
    std::size_t offset;
};

std::vector<Part> partsOfImage()
{
    std::vector<Part> parts;
    QvDatabaseCatalogCategory_t category{};
    category.size = sizeof category;
    for (std::size_t i = 0; QvDatabaseCatalog_category(QvDatabaseCatalogDocument_Image, i, &category) == 0; ++i) {
        parts.push_back({std::vector<char>(category.recordSize), category.imageOffset});
    }
    return parts;
}

/// What a loader can't do without: the file's size, a block for it, one read, one copy for each record.
void loadImage(const std::string& filename, std::vector<Part>& parts)
{
    std::FILE* pFile = std::fopen(filename.c_str(), "rb");
    check(pFile != nullptr, filename);
    struct stat state {};
    check(fstat(fileno(pFile), &state) == 0, filename);
    const auto size = static_cast<std::size_t>(state.st_size);
    const std::unique_ptr<char, decltype(&std::free)> pBlock(static_cast<char*>(std::malloc(size)), &std::free);
    check(std::fread(pBlock.get(), 1, size, pFile) == size, filename);
    std::fclose(pFile);
    for (Part& part : parts) {
        std::memcpy(part.record.data(), pBlock.get() + part.offset, part.record.size());
    }
    keep(parts);
}

/// Puts ready bytes into a file's place at once.
void replaceFile(const std::string& filename, const std::string& content)
{
    const std::string temporary = filename + ".new";
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    check(file >= 0 && ::write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()) &&
              ::fsync(file) == 0 && ::close(file) == 0 && std::rename(temporary.c_str(), filename.c_str()) == 0,
          filename);
}

using Entries = std::unordered_map<std::string, std::string>;

int addEntry(void* pEntries, const char* pSection, const char* pName, const char* pValue)
{
    (*static_cast<Entries*>(pEntries))[std::string(pSection) + "." + pName] = pValue;
    return 1;
}

Entries loadEntries(const std::string& filename)
{
    Entries entries;
    check(ini_parse(filename.c_str(), &addEntry, &entries) == 0, "inih");
    return entries;
}

void imageRows(Report& report, const Document& document)
{
    Database database(document.image);
    auto parts = partsOfImage();
    report.add("image load", "fread and memcpy", 1.05, document.name,
               compare([&] { database.load(document.image); }, [&] { loadImage(document.image, parts); }));

    const std::string content = readFile(document.image);
    const std::string ours = document.output + ".bin";
    const std::string peer = document.output + "_peer.bin";
    report.add("image save", "write, fsync and rename", 1.25, document.name,
               compare([&] { database.save(ours); }, [&] { replaceFile(peer, content); }));
    check(readFile(ours) == readFile(peer), "comparing the images");
}

void initializationRows(Report& report, const Document& document)
{
    Database database(document.json);
    const std::string text = readFile(document.initialization);
    check(loadEntries(document.initialization).size() ==
              static_cast<std::size_t>(std::count(text.begin(), text.end(), '=')),
          "comparing the entries");
    report.add("`.ini` load", "inih into an unordered_map", 0.8, document.name,
               compare([&] { database.load(document.initialization); },
                       [&] {
                           const Entries entries = loadEntries(document.initialization);
                           keep(entries);
                       }));

    const std::string ours = document.output + ".ini";
    const std::string peer = document.output + "_peer.ini";
    database.save(ours);
    const std::string content = readFile(ours);
    report.add("`.ini` save", "bare replace of the file", 3, document.name,
               compare([&] { database.save(ours); }, [&] { replaceFile(peer, content); }));
    check(readFile(ours) == readFile(peer), "comparing the files");
}

} // namespace

void fileRows(Report& report, const Document& document)
{
    imageRows(report, document);
    initializationRows(report, document);
}

} // namespace qv::benchmark
