#include "plot/CurvePyramid.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brask {
namespace {

std::size_t Blocks(std::size_t values, std::size_t perBlock) {
    return (values + perBlock - 1) / perBlock;
}

struct BlockRange {
    ValueRange Range;
    bool AllFinite = true;
};

BlockRange RangeOfAny(std::span<const double> values) {
    BlockRange block;
    for (const double value : values) {
        block.Range.Add(value);
        block.AllFinite = block.AllFinite && std::isfinite(value);
    }
    return block;
}

// Several independent lanes let the compiler keep them in vector registers.
BlockRange RangeOfFullBlock(std::span<const double, CurvePyramid::kBlock> values) {
    constexpr std::size_t kLanes = 8;
    std::array<double, kLanes> low;
    std::array<double, kLanes> high;
    std::array<double, kLanes> check{};
    std::copy_n(values.begin(), kLanes, low.begin());
    high = low;
    for (std::size_t i = 0; i < values.size(); i += kLanes) {
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            // plain comparisons: a test for finite values in here would keep the loop scalar
            const double value = values[i + lane];
            low[lane] = value < low[lane] ? value : low[lane];
            high[lane] = value > high[lane] ? value : high[lane];
            check[lane] += value * 0.0;  // stays 0 only while every value is finite
        }
    }
    double sum = 0;
    for (const double lane : check) sum += lane;
    // asked this way round because a sum that is not a number equals nothing
    if (!(sum == 0.0)) return RangeOfAny(values);
    return {
        {*std::min_element(low.begin(), low.end()), *std::max_element(high.begin(), high.end())}};
}

}  // namespace

CurvePyramid::CurvePyramid(std::span<const double> values) {
    if (values.empty()) return;
    finest_ = Blocks(values.size(), kBlock);
    std::size_t total = finest_;
    levels_ = 1;
    for (std::size_t blocks = finest_; blocks > 1; ++levels_) {
        blocks = Blocks(blocks, kFanOut);
        total += blocks;
    }
    // exact: there are up to hundreds of pyramids, and growing could leave each half empty
    blocks_.reserve(total);

    const auto add = [this](const BlockRange& block) {
        blocks_.push_back(block.Range);
        allFinite_ = allFinite_ && block.AllFinite;
    };
    std::size_t done = 0;
    for (; done + kBlock <= values.size(); done += kBlock) {
        add(RangeOfFullBlock(values.subspan(done).first<kBlock>()));
    }
    if (done < values.size()) add(RangeOfAny(values.subspan(done)));

    std::size_t first = 0;
    for (std::size_t level = 1; level < levels_; ++level) {
        const std::size_t end = blocks_.size();
        for (; first < end; first += kFanOut) {
            ValueRange joined;
            for (std::size_t i = first; i < std::min(first + kFanOut, end); ++i) {
                joined.Add(blocks_[i]);
            }
            blocks_.push_back(joined);
        }
        first = end;
    }
}

std::span<const ValueRange> CurvePyramid::Level(std::size_t level) const {
    std::size_t first = 0;
    std::size_t count = finest_;
    for (; level > 0; --level) {
        first += count;
        count = Blocks(count, kFanOut);
    }
    return std::span(blocks_).subspan(first, count);
}

std::size_t CurvePyramid::Span(std::size_t level) {
    std::size_t span = kBlock;
    for (; level > 0; --level) span *= kFanOut;
    return span;
}

ValueRange CurvePyramid::Whole() const { return blocks_.empty() ? ValueRange{} : blocks_.back(); }

}  // namespace brask
