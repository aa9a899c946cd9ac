#include "GridLines.h"

GridLines::GridLines() = default;
GridLines::GridLines(const GridLines& other) = default;
GridLines& GridLines::operator=(const GridLines& other) = default;
GridLines::~GridLines() = default;

std::int32_t GridLines::firstgrid() const
{
    return m_positions.empty() ? -1 : m_positions.front();
}

std::int32_t GridLines::lastgrid() const
{
    return m_positions.empty() ? -1 : m_positions.back();
}
