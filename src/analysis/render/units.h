#pragma once

#include "analysis/render/renderer.h"

namespace folioscope {

// Lines that read or set the unit state. `Units` is the member of it that the key speaks of.

using UnitMember = std::int16_t UnitState::*;

void RenderResolution(Renderer&, const Element&, UnitMember units);
void RenderSize(Renderer&, const Element&, UnitMember units);
void RenderOrigin(Renderer&, const Element&, UnitMember units);
void RenderMargin(Renderer&, const Element&, UnitMember units);

template <auto Function, UnitMember Units> void WithUnits(Renderer& renderer, const Element& element)
{
    Function(renderer, element, Units);
}

void RenderUnitBase(Renderer&, const Element&);
void RenderShapeUnitBase(Renderer&, const Element&);
void RenderCellSize(Renderer&, const Element&);
void RenderRotation(Renderer&, const Element&);

}  // namespace folioscope
