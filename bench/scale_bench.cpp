// Scaling a 1024 x 1024 premultiplied ARGB image down to 48 x 48 and up to
// 2048 x 2048 by exact area averaging, beside Qt's smooth scaling of the same
// pixels in the same run. Qt may spread a large image over threads, so the CPU
// time counts every thread of the process. After the run the ratios are
// printed: above 1 means the area averaging is slower.
#include "RatioReporter.h"

#include "rfb/Composite.h"
#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/Scaler.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <cstdio>
#include <random>

namespace {

constexpr int sourceSide = 1024;

/// Gradients with noise and a varying alpha, premultiplied as images load.
void paint(rfb::ManagedPixelBuffer& pb) {
  std::mt19937 random(1);
  int stride = 0;
  auto* pixels = reinterpret_cast<std::uint32_t*>(pb.getPixelsRW(pb.getRect(), &stride));
  for (int y = 0; y < sourceSide; ++y)
    for (int x = 0; x < sourceSide; ++x)
      pixels[y * stride + x] = std::uint32_t(x * 255 / sourceSide) << 24 |
                               std::uint32_t(y * 255 / sourceSide) << 16 | (random() & 0xffff);
  rfb::composite(pb, {}, pb, pb.getRect(), rfb::opPremultiply);
}

rfb::ManagedPixelBuffer& sourceImage() {
  static rfb::ManagedPixelBuffer image(rfb::pfArgb8888(), {0, 0, sourceSide, sourceSide});
  static const bool painted = (paint(image), true);
  (void)painted;
  return image;
}

void scaler(benchmark::State& state) {
  const int side = static_cast<int>(state.range(0));
  rfb::ManagedPixelBuffer out(rfb::pfArgb8888(), {0, 0, side, side});
  xnutil::Scaler scale;
  scale.setSource(&sourceImage(), true);
  scale.setDestSize({side, side});
  int stride = 0;
  std::uint8_t* pixels = out.getPixelsRW(out.getRect(), &stride);
  for (auto _ : state) {
    scale.getImage(pixels, out.getRect(), stride);
    benchmark::DoNotOptimize(pixels);
  }
}
BENCHMARK(scaler)->Arg(48)->Arg(2048)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void qtSmooth(benchmark::State& state) {
  const int side = static_cast<int>(state.range(0));
  int stride = 0;
  const std::uint8_t* pixels = sourceImage().getPixelsR(sourceImage().getRect(), &stride);
  // The same bytes, not copied: Qt's premultiplied ARGB is this format in memory.
  const QImage image(pixels, sourceSide, sourceSide, stride * 4,
                     QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    QImage scaled = image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    benchmark::DoNotOptimize(scaled.constBits());
  }
}
BENCHMARK(qtSmooth)->Arg(48)->Arg(2048)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

} // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  sourceImage();
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  for (const char* side : {"48", "2048"}) {
    const std::string ours = std::string("scaler/") + side + "/process_time";
    const std::string qt = std::string("qtSmooth/") + side + "/process_time";
    std::printf("1024 to %s: area averaging / Qt smooth = %.2f in real time, %.2f in CPU time\n",
                side, reporter.ratio(ours, qt), reporter.cpuRatio(ours, qt));
  }
  return 0;
}
