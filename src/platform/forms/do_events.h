#pragma once

// Yields to the message queue: pending events run now, each as an outermost event.
void DoEvents();
