#pragma once

// The process kills itself with SIGKILL right behind this call of the system that changes a file or brings it to the
// disk, counted from 1. Of a write only half is made. Never when 0.
void KillAtCall(int call);
