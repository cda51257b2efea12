/// @file panes.h
/// Top-level windows as the host shows them, and what the host does to them.
#pragma once

#include "display/display.h"

namespace platform::user {

/// Fills in what there is to show now. UserLock held.
void DescribeScene(display::Scene* scene);
bool DescribeIcon(std::uintptr_t icon, display::IconImage* image);

/// @returns whether DescribeScene would tell something else than when it was last called. Cheap, and may be wrong about
/// what has been drawn anyway: titles and icons.
bool SceneChanged();

// Called by the display on its own thread. The windows' threads do what is asked when they look at their queues.

void CloseFromHost(display::PaneId pane);
void ActivateFromHost(display::PaneId pane);
void MinimiseFromHost(display::PaneId pane, bool minimised, unsigned report);
void PlaceFromHost(display::PaneId pane, const display::Box& place);

}  // namespace platform::user
