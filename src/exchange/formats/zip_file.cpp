// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/formats/zip_file.h"

#include <zip.h>

#include <array>
#include <memory>
#include <vector>

#include "platform/loaded_library.h"

namespace tallyroll {
namespace {

constexpr zip_int64_t kMostEntries = 64;
constexpr std::size_t kUnzipBlock = std::size_t{1} << 16;
constexpr const char* kNoZipLibrary =
    "cannot be opened: the library for ZIP archives (libzip) is not installed";
constexpr const char* kNoArchive = "is not a ZIP archive, or it is damaged";

// The calls of the library, by its own declarations.
struct ZipCalls {
  decltype(&zip_source_buffer_create) source_buffer_create = nullptr;
  decltype(&zip_source_free) source_free = nullptr;
  decltype(&zip_source_keep) source_keep = nullptr;
  decltype(&zip_source_open) source_open = nullptr;
  decltype(&zip_source_read) source_read = nullptr;
  decltype(&zip_source_close) source_close = nullptr;
  decltype(&zip_open_from_source) open_from_source = nullptr;
  decltype(&zip_get_num_entries) get_num_entries = nullptr;
  decltype(&zip_stat_index) stat_index = nullptr;
  decltype(&zip_fopen_index) fopen_index = nullptr;
  decltype(&zip_fread) read = nullptr;
  decltype(&zip_fclose) fclose = nullptr;
  decltype(&zip_source_buffer) source_buffer = nullptr;
  decltype(&zip_file_add) file_add = nullptr;
  decltype(&zip_file_set_mtime) file_set_mtime = nullptr;
  decltype(&zip_close) close = nullptr;
  decltype(&zip_discard) discard = nullptr;
};

// False without the library.
bool LoadZip(ZipCalls& zip) {
  const LoadedLibrary library{"libzip.so.4", "libzip.so.5"};
  return library.Find("zip_source_buffer_create", zip.source_buffer_create) &&
         library.Find("zip_source_free", zip.source_free) &&
         library.Find("zip_source_keep", zip.source_keep) &&
         library.Find("zip_source_open", zip.source_open) &&
         library.Find("zip_source_read", zip.source_read) &&
         library.Find("zip_source_close", zip.source_close) &&
         library.Find("zip_open_from_source", zip.open_from_source) &&
         library.Find("zip_get_num_entries", zip.get_num_entries) &&
         library.Find("zip_stat_index", zip.stat_index) &&
         library.Find("zip_fopen_index", zip.fopen_index) && library.Find("zip_fread", zip.read) &&
         library.Find("zip_fclose", zip.fclose) &&
         library.Find("zip_source_buffer", zip.source_buffer) &&
         library.Find("zip_file_add", zip.file_add) &&
         library.Find("zip_file_set_mtime", zip.file_set_mtime) &&
         library.Find("zip_close", zip.close) && library.Find("zip_discard", zip.discard);
}

bool IsPlainName(std::string_view name) {
  return !name.empty() && name.find_first_of("/\\:") == std::string_view::npos && name[0] != '.';
}

// Reads no more than an entry may have, whatever it says.
std::string ReadEntry(const ZipCalls& zip, zip_t* archive, zip_uint64_t index, std::size_t most,
                      std::string& text) {
  zip_stat_t stat{};
  if (zip.stat_index(archive, index, 0, &stat) != 0) return kNoArchive;
  if ((stat.valid & ZIP_STAT_SIZE) != 0 && stat.size > most) return "unpacks to too much";
  const std::unique_ptr<zip_file_t, decltype(zip.fclose)> file(zip.fopen_index(archive, index, 0),
                                                               zip.fclose);
  if (!file) return kNoArchive;
  std::array<char, kUnzipBlock> block;
  zip_int64_t got = 0;
  while ((got = zip.read(file.get(), block.data(), block.size())) > 0) {
    text.append(block.data(), static_cast<std::size_t>(got));
    if (text.size() > most) return "unpacks to too much";
  }
  const bool told = (stat.valid & ZIP_STAT_SIZE) == 0 || stat.size == text.size();
  return got == 0 && told ? "" : kNoArchive;
}

std::string ReadEntries(const ZipCalls& zip, zip_t* archive, ZipFiles& out) {
  const zip_int64_t count = zip.get_num_entries(archive, 0);
  if (count < 0 || count > kMostEntries) return "holds too many files";
  std::size_t left = kMostUnpacked;
  for (zip_int64_t i = 0; i < count; ++i) {
    zip_stat_t stat{};
    const auto index = static_cast<zip_uint64_t>(i);
    if (zip.stat_index(archive, index, 0, &stat) != 0 || (stat.valid & ZIP_STAT_NAME) == 0)
      return kNoArchive;
    const std::string name = stat.name;
    if (!IsPlainName(name)) return "holds a file of another folder";
    std::string text;
    std::string refusal = ReadEntry(zip, archive, index, left, text);
    if (!refusal.empty()) return refusal;
    left -= text.size();
    if (!out.files.emplace(name, std::move(text)).second) return "holds a file twice";
  }
  return {};
}

std::string ReadSource(const ZipCalls& zip, zip_source_t* source) {
  std::string bytes;
  if (zip.source_open(source) != 0) return bytes;
  std::array<char, kUnzipBlock> block;
  for (zip_int64_t got = 0; (got = zip.source_read(source, block.data(), block.size())) > 0;)
    bytes.append(block.data(), static_cast<std::size_t>(got));
  zip.source_close(source);
  return bytes;
}

}  // namespace

ZipFiles Unzip(std::string_view bytes) {
  ZipCalls zip;
  ZipFiles out;
  if (!LoadZip(zip)) {
    out.refusal = kNoZipLibrary;
    return out;
  }
  if (bytes.empty()) {  // to the library an archive without files
    out.refusal = kNoArchive;
    return out;
  }
  zip_error_t error{};
  zip_source_t* const source = zip.source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  zip_t* const archive =
      source ? zip.open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error) : nullptr;
  if (!archive) {
    if (source) zip.source_free(source);
    out.refusal = kNoArchive;
    return out;
  }
  out.refusal = ReadEntries(zip, archive, out);
  if (!out.refusal.empty()) out.files.clear();
  zip.discard(archive);
  return out;
}

ZipBytes Zip(const std::map<std::string, std::string, std::less<>>& files) {
  ZipCalls zip;
  if (!LoadZip(zip)) return {kNoZipLibrary, ""};
  zip_error_t error{};
  zip_source_t* const target = zip.source_buffer_create(nullptr, 0, 0, &error);
  zip_t* const archive = target ? zip.open_from_source(target, ZIP_TRUNCATE, &error) : nullptr;
  if (!archive) {
    if (target) zip.source_free(target);
    return {"cannot be packed", ""};
  }
  zip.source_keep(target);
  bool packed = true;
  for (const auto& [name, text] : files) {
    zip_source_t* const source = zip.source_buffer(archive, text.data(), text.size(), 0);
    const zip_int64_t index = source ? zip.file_add(archive, name.c_str(), source, 0) : -1;
    if (source && index < 0) zip.source_free(source);
    packed = packed && index >= 0 &&
             zip.file_set_mtime(archive, static_cast<zip_uint64_t>(index), 315'619'200, 0) == 0;
  }
  packed = packed && zip.close(archive) == 0;
  if (!packed) zip.discard(archive);
  ZipBytes out{packed ? "" : "cannot be packed", packed ? ReadSource(zip, target) : ""};
  zip.source_free(target);
  return out;
}

}  // namespace tallyroll
