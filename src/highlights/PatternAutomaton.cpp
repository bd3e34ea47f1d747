#include "highlights/PatternAutomaton.h"

#include "base/ByteText.h"

#include <cstring>
#include <utility>

namespace steward {

void PatternAutomaton::Build(const std::vector<const char*>& patterns)
{
    *this = PatternAutomaton{};
    bool used[256] = {};
    std::size_t cells = 1;
    for (const char* pattern : patterns) {
        cells += std::strlen(pattern);
        for (const char* p = pattern; *p != '\0'; ++p)
            used[FoldCase(static_cast<unsigned char>(*p))] = true;
    }
    // Upper case letters fold away and NUL ends a pattern, so the classes fit in a byte.
    std::uint8_t folded[256] = {};
    for (int c = 0; c < 256; ++c) {
        if (used[c])
            folded[c] = static_cast<std::uint8_t>(classes_++);
    }
    for (int c = 0; c < 256; ++c)
        classOf_[c] = folded[FoldCase(static_cast<unsigned char>(c))];
    if (cells * classes_ > MAX_CELLS)
        return;
    nextSame_.assign(patterns.size(), NONE);
    AddState();
    for (std::size_t i = 0; i < patterns.size(); ++i)
        Insert(patterns[i], static_cast<std::uint32_t>(i));
    Link();
    Renumber();
    seen_.assign(fail_.size(), 0);
    usable_ = true;
}

std::uint32_t PatternAutomaton::AddState()
{
    const auto state = static_cast<std::uint32_t>(fail_.size());
    next_.resize(next_.size() + classes_, 0);
    fail_.push_back(0);
    output_.push_back(NONE);
    firstEnd_.push_back(NONE);
    return state;
}

void PatternAutomaton::Insert(const char* pattern, std::uint32_t index)
{
    if (*pattern == '\0')
        return;
    std::uint32_t state = 0;
    for (const char* p = pattern; *p != '\0'; ++p) {
        const std::size_t cell = state * classes_ + classOf_[static_cast<unsigned char>(*p)];
        if (next_[cell] == 0) {
            const std::uint32_t added = AddState();
            next_[cell] = added;
        }
        state = next_[cell];
    }
    nextSame_[index] = firstEnd_[state];
    firstEnd_[state] = index;
}

void PatternAutomaton::Link()
{
    // Breadth first, so that a state's suffix has its row complete before the state is reached;
    // in a row not yet visited a 0 is a missing child, since the root is nobody's child.
    std::vector<std::uint32_t> queue{0};
    for (std::size_t head = 0; head < queue.size(); ++head) {
        const std::uint32_t state = queue[head];
        const std::uint32_t suffix = fail_[state];
        for (std::size_t c = 0; c < classes_; ++c) {
            std::uint32_t& cell = next_[state * classes_ + c];
            const std::uint32_t viaSuffix = state == 0 ? 0 : next_[suffix * classes_ + c];
            if (cell == 0) {
                cell = viaSuffix;
                continue;
            }
            fail_[cell] = viaSuffix;
            output_[cell] = firstEnd_[cell] != NONE ? cell : output_[viaSuffix];
            queue.push_back(cell);
        }
    }
}

void PatternAutomaton::Renumber()
{
    const std::size_t states = fail_.size();
    std::vector<std::uint32_t> order(states);
    std::uint32_t quiet = 0;
    for (std::size_t state = 0; state < states; ++state)
        quiet += output_[state] == NONE ? 1 : 0;
    std::uint32_t nextQuiet = 0;
    std::uint32_t nextEnding = quiet;
    for (std::size_t state = 0; state < states; ++state)
        order[state] = output_[state] == NONE ? nextQuiet++ : nextEnding++;
    auto remap = [&](std::uint32_t state) { return state == NONE ? NONE : order[state]; };
    std::vector<std::uint32_t> next(next_.size());
    std::vector<std::uint32_t> fail(states), output(states), firstEnd(states);
    for (std::size_t state = 0; state < states; ++state) {
        const std::uint32_t to = order[state];
        for (std::size_t c = 0; c < classes_; ++c)
            next[to * classes_ + c] =
                static_cast<std::uint32_t>(order[next_[state * classes_ + c]] * classes_);
        fail[to] = order[fail_[state]];
        output[to] = remap(output_[state]);
        firstEnd[to] = firstEnd_[state];
    }
    next_ = std::move(next);
    fail_ = std::move(fail);
    output_ = std::move(output);
    firstEnd_ = std::move(firstEnd);
    firstEndingRow_ = static_cast<std::uint32_t>(quiet * classes_);
}

} // namespace steward
