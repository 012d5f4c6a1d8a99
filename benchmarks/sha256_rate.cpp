// sha256_rate: prints how many bytes of memory one core hashes in a second.
#include <openssl/evp.h>

#include <chrono>
#include <cstdio>
#include <vector>

int main() {
  constexpr std::size_t kPieces = 2'000;
  const std::vector<unsigned char> piece(std::size_t{256} * 1024, 'k');
  EVP_MD_CTX* const context = EVP_MD_CTX_new();
  if (context == nullptr || EVP_DigestInit_ex(context, EVP_sha256(), nullptr) != 1) return 1;
  const auto started = std::chrono::steady_clock::now();
  for (std::size_t done = 0; done < kPieces; ++done) {
    if (EVP_DigestUpdate(context, piece.data(), piece.size()) != 1) return 1;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - started;
  EVP_MD_CTX_free(context);
  std::printf("%.0f\n", static_cast<double>(kPieces * piece.size()) / seconds.count());
  return 0;
}
