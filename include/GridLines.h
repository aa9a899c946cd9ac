#pragma once

#include "OnBoardUIExport.h"

#include <cstdint>
#include <vector>

// Where the vertical dividers of a report list stand: client pixels, in the order of the columns.
class ONBOARDUI_API GridLines
{
public:
    GridLines();

    // @{
    // Copies the positions.
    GridLines(const GridLines& other);
    GridLines& operator=(const GridLines& other);
    // @}

    virtual ~GridLines();

    // @{
    // The first and the last position; -1 without any.
    std::int32_t firstgrid() const;
    std::int32_t lastgrid() const;
    // @}

    // Forgets all positions.
    void Clear() { m_positions.clear(); }
    // Adds a position behind the others.
    void Add(std::int32_t position) { m_positions.push_back(position); }
    // All of them, in the order in which they were added.
    const std::vector<std::int32_t>& Positions() const { return m_positions; }

private:
    std::vector<std::int32_t> m_positions;
};
