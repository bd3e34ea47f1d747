// Cost of painting a text window: it follows the rows on screen while live, and the depth of
// the top line while frozen.
#include "terminal/AnsiWindow.h"

#include "NullWindowHost.h"

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

using namespace steward;

class NullLayer : public DrawingLayer {
  public:
    void SetTextColor(COLORREF color) override { text_ = color; }
    COLORREF GetTextColor() const override { return text_; }
    void SetBkColor(COLORREF color) override { back_ = color; }
    COLORREF GetBkColor() const override { return back_; }
    void ExtTextOutA(std::int32_t, std::int32_t, const Rect&, const char* text,
                     std::int32_t length) override
    {
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(length);
    }
    void TextOutA(std::int32_t, std::int32_t, const char*, std::int32_t) override {}

  private:
    COLORREF text_ = 0;
    COLORREF back_ = 0;
};

// A 1000 by 800 pixel window with a font of 8 by 16 pixels: 50 rows.

struct FullWindow {
    FullWindow()
    {
        char line[160];
        for (int i = 0; i < 2000; ++i) {
            std::snprintf(line, sizeof line,
                          "\x8B%d\xA0 The \x8Cquick\xA0 brown fox jumps over the lazy dog, "
                          "\x99"
                          "again\xA1"
                          " and again and again in line %d.\n",
                          i, i);
            window->AppendText(line);
        }
    }
    NullWindowHost host;
    Settings settings;
    PromptState prompt;
    std::unique_ptr<AnsiWindow> window =
        AnsiWindow::Create("Game Window", {host, settings, nullptr, &prompt});
    NullLayer layer;
};

void BM_PaintLiveTail(benchmark::State& state)
{
    FullWindow full;
    for (auto _ : state)
        full.window->PaintText(full.layer);
    state.SetItemsProcessed(state.iterations() * full.window->GetRows());
}
BENCHMARK(BM_PaintLiveTail);

void BM_PaintFrozenTop(benchmark::State& state)
{
    FullWindow full;
    full.window->ApplyScrollCommand(SB_TOP, 0);
    for (auto _ : state)
        full.window->PaintText(full.layer);
    state.SetItemsProcessed(state.iterations() * full.window->GetRows());
}
BENCHMARK(BM_PaintFrozenTop);

void BM_PaintFrozenDeep(benchmark::State& state)
{
    FullWindow full;
    full.window->ApplyScrollCommand(SB_LINEUP, 0);
    for (auto _ : state)
        full.window->PaintText(full.layer);
    state.SetItemsProcessed(state.iterations() * full.window->GetRows());
}
BENCHMARK(BM_PaintFrozenDeep);

} // namespace
