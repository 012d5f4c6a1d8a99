#pragma once

#include <openssl/evp.h>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>

namespace klarvik {

class FileReader;

/// A SHA-256.
using Digest = std::array<unsigned char, 32>;

/// 64 lower-case hexadecimal digits.
[[nodiscard]] std::string hexadecimal(const Digest& digest);

/// SHA-256 of bytes that come piece by piece. One thread at a time.
class Sha256 {
 public:
  Sha256();

  void begin();
  void add(std::span<const std::byte> bytes);
  /// Of everything since `begin`; nothing when the library failed on the way.
  [[nodiscard]] std::optional<Digest> finish();

 private:
  struct Release {
    void operator()(EVP_MD* method) const { EVP_MD_free(method); }
    void operator()(EVP_MD_CTX* context) const { EVP_MD_CTX_free(context); }
  };
  std::unique_ptr<EVP_MD, Release> _method;
  std::unique_ptr<EVP_MD_CTX, Release> _context;
  bool _works = false;
};

/// Hashes whole files, one after the other, through one buffer. One thread at a time.
class ContentHasher {
 public:
  static constexpr std::size_t chunkBytes = std::size_t{256} * 1024;

  /// Nothing where there is no file. When reading fails on the way, what was read until
  /// then is all that counts.
  [[nodiscard]] std::optional<Digest> digest(std::unique_ptr<FileReader> file);

 private:
  Sha256 _sha256;
  std::unique_ptr<std::byte[]> _chunk = std::make_unique_for_overwrite<std::byte[]>(chunkBytes);
};

}  // namespace klarvik
