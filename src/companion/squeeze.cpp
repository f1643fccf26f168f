// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/squeeze.h"

#include <zstd.h>

#include <memory>

#include "platform/loaded_library.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr const char* kNoSqueezeLibrary = "the library for compression (libzstd) is not installed";
constexpr const char* kSqueezedDamaged = "it is damaged";

// The calls of the library, by its own declarations.
struct SqueezeCalls {
  decltype(&ZSTD_isError) is_error = nullptr;
  decltype(&ZSTD_compressBound) compress_bound = nullptr;
  decltype(&ZSTD_createCCtx) create = nullptr;
  decltype(&ZSTD_freeCCtx) free = nullptr;
  decltype(&ZSTD_CCtx_setParameter) set = nullptr;
  decltype(&ZSTD_compress2) compress = nullptr;
  decltype(&ZSTD_getFrameContentSize) content_size = nullptr;
  decltype(&ZSTD_decompress) decompress = nullptr;
};

// False without the library.
bool LoadSqueeze(SqueezeCalls& zstd) {
  const LoadedLibrary library{"libzstd.so.1"};
  return library.Find("ZSTD_isError", zstd.is_error) &&
         library.Find("ZSTD_compressBound", zstd.compress_bound) &&
         library.Find("ZSTD_createCCtx", zstd.create) && library.Find("ZSTD_freeCCtx", zstd.free) &&
         library.Find("ZSTD_CCtx_setParameter", zstd.set) &&
         library.Find("ZSTD_compress2", zstd.compress) &&
         library.Find("ZSTD_getFrameContentSize", zstd.content_size) &&
         library.Find("ZSTD_decompress", zstd.decompress);
}

}  // namespace

std::string Squeezed(std::string_view bytes) {
  SqueezeCalls zstd;
  if (!LoadSqueeze(zstd)) return std::string(bytes);
  const std::unique_ptr<ZSTD_CCtx, decltype(zstd.free)> work(zstd.create(), zstd.free);
  if (!work) return std::string(bytes);
  // By the checksum a byte that changed on the disk is noticed.
  zstd.set(work.get(), ZSTD_c_checksumFlag, 1);
  std::string small(zstd.compress_bound(bytes.size()), '\0');
  const std::size_t size =
      zstd.compress(work.get(), small.data(), small.size(), bytes.data(), bytes.size());
  if (zstd.is_error(size) != 0) return std::string(bytes);
  small.resize(size);
  return small;
}

Unsqueezed Unsqueeze(std::string_view kept) {
  if (!IsSqueezed(kept)) return {std::string(kept), {}};
  SqueezeCalls zstd;
  if (!LoadSqueeze(zstd)) return {{}, kNoSqueezeLibrary};
  const unsigned long long size = zstd.content_size(kept.data(), kept.size());
  if (size > kLargestFile) return {{}, kSqueezedDamaged};  // the signs of a fault are, too
  std::string bytes(static_cast<std::size_t>(size), '\0');
  const std::size_t got = zstd.decompress(bytes.data(), bytes.size(), kept.data(), kept.size());
  if (zstd.is_error(got) != 0 || got != bytes.size()) return {{}, kSqueezedDamaged};
  return {std::move(bytes), {}};
}

}  // namespace tallyroll
