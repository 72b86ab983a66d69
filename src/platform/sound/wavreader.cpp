#include "platform/sound/wavreader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/desktop.h"

namespace duskmarch {
namespace {

using Bytes = std::span<const std::byte>;

std::uint64_t littleendian(Bytes bytes) {
  std::uint64_t value = 0;
  for (std::size_t n = bytes.size(); n-- > 0;)
    value = value << 8 | std::to_integer<unsigned>(bytes[n]);
  return value;
}

bool standsat(Bytes bytes, std::size_t offset, std::string_view name) {
  return std::ranges::equal(bytes.subspan(offset, name.size()), std::as_bytes(std::span(name)));
}

struct Chunks {
  std::optional<Bytes> format;
  Bytes data;
};

Chunks findchunks(Bytes bytes) {
  if (bytes.size() < 12 || !standsat(bytes, 0, "RIFF") || !standsat(bytes, 8, "WAVE")) {
    throw PlatformError("not a RIFF WAVE file");
  }
  Chunks found;
  for (std::size_t offset = 12; offset + 8 <= bytes.size();) {
    const std::size_t size = littleendian(bytes.subspan(offset + 4, 4));
    const Bytes rest = bytes.subspan(offset + 8);
    if (standsat(bytes, offset, "data")) {
      if (size > rest.size()) throw PlatformError("its data chunk is longer than the file");
      found.data = rest.first(size);
      return found;
    }
    if (standsat(bytes, offset, "fmt ")) found.format = rest.first(std::min(size, rest.size()));
    offset += 8 + size + size % 2;
  }
  throw PlatformError("it has no data chunk");
}

// One sample of its bytes.
using Decode = float (*)(Bytes);

float unsignedbyte(Bytes bytes) {
  return static_cast<float>(std::to_integer<int>(bytes[0]) - 128) / 128;
}

template <int bits>
float integer(Bytes bytes) {
  const auto high = static_cast<std::uint32_t>(littleendian(bytes)) << (32 - bits);
  return static_cast<float>(std::bit_cast<std::int32_t>(high)) / 2147483648.0F;
}

float single(Bytes bytes) {
  return std::bit_cast<float>(static_cast<std::uint32_t>(littleendian(bytes)));
}

float twofold(Bytes bytes) {
  return static_cast<float>(std::bit_cast<double>(littleendian(bytes)));
}

// Both give 16 bits: a sign, three bits of exponent and four of mantissa, stored inverted.
float mulaw(Bytes bytes) {
  constexpr int bias = 0x84;
  const int code = ~std::to_integer<int>(bytes[0]) & 0xFF;
  const int size = ((((code & 0xF) << 3) + bias) << (code >> 4 & 7)) - bias;
  return static_cast<float>(code < 0x80 ? size : -size) / 32768;
}

float alaw(Bytes bytes) {
  const int code = std::to_integer<int>(bytes[0]) ^ 0x55;
  const int exponent = code >> 4 & 7;
  const int mantissa = (code & 0xF) << 4 | 8;
  const int size = exponent == 0 ? mantissa : (mantissa + 0x100) << (exponent - 1);
  return static_cast<float>(code < 0x80 ? -size : size) / 32768;
}

struct Encoding {
  std::uint64_t tag;
  std::uint64_t bits;
  Decode decode;
};

constexpr auto encodings = std::to_array<Encoding>({
    {1, 8, unsignedbyte},
    {1, 16, integer<16>},
    {1, 24, integer<24>},
    {1, 32, integer<32>},
    {3, 32, single},
    {3, 64, twofold},
    {6, 8, alaw},
    {7, 8, mulaw},
});
constexpr std::uint64_t extensible = 0xFFFE;  // the tag stands in a longer chunk

struct Format {
  std::size_t channels;
  int rate;
  std::size_t samplesize;  // bytes
  Decode decode;
};

const Encoding& encodingof(Bytes chunk) {
  std::uint64_t tag = littleendian(chunk.first(2));
  if (tag == extensible && chunk.size() >= 26) tag = littleendian(chunk.subspan(24, 2));
  const std::uint64_t bits = littleendian(chunk.subspan(14, 2));
  const auto* found = std::ranges::find_if(
      encodings, [&](const Encoding& known) { return known.tag == tag && known.bits == bits; });
  if (found == encodings.end()) throw PlatformError("its encoding is not known");
  return *found;
}

Format formatof(const std::optional<Bytes>& chunk) {
  if (!chunk || chunk->size() < 16) throw PlatformError("it has no format chunk");
  const std::uint64_t channels = littleendian(chunk->subspan(2, 2));
  const std::uint64_t rate = littleendian(chunk->subspan(4, 4));
  if (channels == 0) throw PlatformError("no channels");
  if (channels > 2) throw PlatformError("more than two channels");
  if (rate < 4000 || rate > 192000) {
    throw PlatformError("a rate of " + std::to_string(rate) + " a second");
  }
  const Encoding& encoding = encodingof(*chunk);
  const std::size_t samplesize = encoding.bits / 8;
  if (littleendian(chunk->subspan(12, 2)) != channels * samplesize) {
    throw PlatformError("its frames are not as large as its samples");
  }
  return {channels, static_cast<int>(rate), samplesize, encoding.decode};
}

}  // namespace

Wave readwave(Bytes bytes) {
  const Chunks chunks = findchunks(bytes);
  const Format format = formatof(chunks.format);
  const std::size_t frames = chunks.data.size() / (format.channels * format.samplesize);
  Wave wave{format.channels, format.rate, std::vector<float>(frames * format.channels)};
  Bytes rest = chunks.data;
  for (float& sample : wave.samples) {
    sample = format.decode(rest.first(format.samplesize));
    rest = rest.subspan(format.samplesize);
  }
  return wave;
}

}  // namespace duskmarch
