#include "WindowFixture.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> allocations{0};

} // namespace

// Counts every allocation of this test program, so a test can show that a path makes none.
// Every form is replaced: under the sanitizers a form left out goes to their allocator, and
// its delete would then hand ours memory that malloc never gave.
void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}

void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace steward::testing {
namespace {

// A surface that draws nothing and keeps nothing.
class NullLayer : public DrawingLayer {
  public:
    void SetTextColor(COLORREF color) override { text_ = color; }
    COLORREF GetTextColor() const override { return text_; }
    void SetBkColor(COLORREF color) override { back_ = color; }
    COLORREF GetBkColor() const override { return back_; }
    void ExtTextOutA(std::int32_t, std::int32_t, const Rect&, const char*, std::int32_t) override {}
    void TextOutA(std::int32_t, std::int32_t, const char*, std::int32_t) override {}

  private:
    COLORREF text_ = 0;
    COLORREF back_ = 0;
};

using AllocationTest = WindowTest;

TEST_F(AllocationTest, AppendingAndPaintingAllocateNothing)
{
    auto window = Make("Game Window", true);
    AppendLines(*window, 200,
                "\x8C\x99"
                "coloured\xA1\xA0 line ");
    window->GetLiveBuffer().SetSelection(5000, 5100);
    NullLayer layer;

    const long before = allocations.load();
    window->AppendText("\x8Bmore text\xA0\r\n");
    window->PaintText(layer);
    window->ApplyScrollCommand(SB_PAGEUP, 0);
    window->PaintText(layer);
    window->Paint(layer, true);
    EXPECT_EQ(allocations.load(), before);
}

} // namespace
} // namespace steward::testing
