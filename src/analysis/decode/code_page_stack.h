#pragma once

#include <cstdint>
#include <vector>

namespace folioscope {

// One code page for each level of nesting. Levels mostly repeat the one below them, so runs of equal levels are kept:
// a million nested levels cost no memory and a step costs the same at any depth.
class CodePageStack {
public:
    // Levels 0 and 1 hold the run's page.
    void Reset(std::int32_t lngInputCP)
    {
        runs_.assign(1, {lngInputCP, 0});
        depth_ = 1;
    }

    std::int32_t Depth() const { return depth_; }
    std::int32_t Current() const { return runs_.back().page; }

    // The new top takes the page of the level below.
    void Push() { ++depth_; }

    // The lowest two levels stay.
    void Pop()
    {
        if (depth_ < 2) return;
        --depth_;
        if (runs_.back().from > depth_) runs_.pop_back();
    }

    void SetTop(std::int32_t page)
    {
        if (page == Current()) return;
        if (runs_.back().from == depth_)
            runs_.back().page = page;
        else
            runs_.push_back({page, depth_});
    }

    // The level below the top takes the top's page.
    void HandDown()
    {
        const std::int32_t page = Current();
        Pop();
        SetTop(page);
        Push();
    }

private:
    struct Run {
        std::int32_t page, from;  // from: the lowest level that has the page
    };
    std::vector<Run> runs_ = {{37, 0}};
    std::int32_t depth_ = 1;
};

}  // namespace folioscope
