#pragma once

// True when another live process of the console holds the instance lock, an exclusive flock on
// qd7console.lock in the user's runtime directory. The first call takes the lock and keeps it for
// the life of the process, so later calls in the same process are false. A process that has died
// holds nothing, whatever file it left.
bool earlierInstanceRunning();
