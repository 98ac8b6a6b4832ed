#pragma once

// The process kills itself with SIGKILL instead of making this call of the system that changes a file or brings it to
// the disk, counted from 1. Instead of a write it makes half of it. Never when 0.
void KillAtCall(int call);
