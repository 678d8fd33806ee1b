#include "PngSamples.h"

#include <png.h>

#include <stdexcept>

namespace xnutil::test {

namespace {

void append(png_structp png, png_bytep data, png_size_t length) {
  auto* out = static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(png));
  out->insert(out->end(), data, data + length);
}

void flush(png_structp) {}

int channels(int colourType) {
  switch (colourType) {
  case PNG_COLOR_TYPE_GRAY:
  case PNG_COLOR_TYPE_PALETTE:
    return 1;
  case PNG_COLOR_TYPE_GRAY_ALPHA:
    return 2;
  case PNG_COLOR_TYPE_RGB:
    return 3;
  default:
    return 4;
  }
}

/// Packs one row of samples at `depth` bits, most significant first. Below 8
/// bits, `indices` are kept as they are and other samples keep their top bits.
std::vector<std::uint8_t> packRow(const std::vector<unsigned>& samples, int depth, bool indices) {
  std::vector<std::uint8_t> row;
  if (depth == 16) {
    for (unsigned s : samples)
      row.insert(row.end(), {static_cast<std::uint8_t>(s), static_cast<std::uint8_t>(s)});
    return row;
  }
  row.assign((samples.size() * depth + 7) / 8, 0);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const unsigned value = depth == 8 || indices ? samples[i] : samples[i] >> (8 - depth);
    const std::size_t bit = i * depth;
    row[bit / 8] |= static_cast<std::uint8_t>(value << (8 - depth - bit % 8));
  }
  return row;
}

} // namespace

std::vector<std::uint8_t> encodePng(const PngSpec& spec, const std::vector<Rgba>& pixels) {
  std::vector<std::uint8_t> out;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    throw std::runtime_error("encodePng failed");
  }
  png_set_write_fn(png, &out, append, flush);
  png_set_IHDR(png, info, spec.width, spec.height, spec.bitDepth, spec.colourType,
               spec.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (spec.colourType == PNG_COLOR_TYPE_PALETTE) {
    std::vector<png_color> colours;
    std::vector<png_byte> alphas;
    bool translucent = false;
    for (const Rgba& entry : spec.palette) {
      colours.push_back({entry.r, entry.g, entry.b});
      alphas.push_back(entry.a);
      translucent |= entry.a != 255;
    }
    png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
    if (translucent)
      png_set_tRNS(png, info, alphas.data(), static_cast<int>(alphas.size()), nullptr);
  } else if (spec.transparent) {
    const Rgba& t = *spec.transparent;
    const int scale = spec.bitDepth == 16 ? 257 : 1;
    const int shift = spec.bitDepth < 8 ? 8 - spec.bitDepth : 0;
    png_color_16 colour{};
    colour.red = static_cast<png_uint_16>(t.r * scale >> shift);
    colour.green = static_cast<png_uint_16>(t.g * scale >> shift);
    colour.blue = static_cast<png_uint_16>(t.b * scale >> shift);
    colour.gray = colour.red;
    png_set_tRNS(png, info, nullptr, 0, &colour);
  }
  png_write_info(png, info);

  const int n = channels(spec.colourType);
  std::vector<std::vector<std::uint8_t>> rows;
  for (int y = 0; y < spec.height; ++y) {
    std::vector<unsigned> samples;
    for (int x = 0; x < spec.width; ++x) {
      const Rgba& p = pixels[static_cast<std::size_t>(y * spec.width + x)];
      const unsigned all[4] = {p.r, p.g, p.b, p.a};
      if (n == 2)
        samples.insert(samples.end(), {p.r, p.a});
      else
        samples.insert(samples.end(), all, all + n);
    }
    rows.push_back(packRow(samples, spec.bitDepth, spec.colourType == PNG_COLOR_TYPE_PALETTE));
  }
  std::vector<png_bytep> pointers;
  for (auto& row : rows)
    pointers.push_back(row.data());
  png_write_image(png, pointers.data());
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return out;
}

std::vector<std::uint8_t> solidPng(int width, int height, Rgba colour) {
  return encodePng({width, height, 6, 8}, std::vector<Rgba>(std::size_t(width) * height, colour));
}

} // namespace xnutil::test
