// OpmRefreshProperties: a module asks every open property inspector to read
// its rows anew (values, and which rows are visible and editable).
#pragma once

#include <functional>

// `all` false: only the values; true: also visibility and read-only state.
void OpmRefreshProperties(bool all);

// Inspectors listen here while they live; the number returned removes them.
int hostAddPropertyRefresher(std::function<void(bool all)> refresher);
void hostRemovePropertyRefresher(int cookie);
