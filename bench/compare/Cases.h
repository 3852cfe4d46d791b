#pragma once

// Each function declares some rows of the table and enters the library and the floor, or enters one peer.

namespace bench
{

void AddLines();
void AddCircles();
void AddEllipses();
void AddEquations();
void AddSegments();
void AddOutlines();
void AddMaps();
void AddBuilders();

void AddLib2geom();
void AddCgal();
void AddBoostGeometry();
void AddGeos();
void AddGsl();

} // namespace bench
