#pragma once

// The mouse pointer of the whole console: on shows the hourglass, off the normal pointer. Not
// nested: switching on twice and off once leaves the normal pointer, as the console expects.
namespace Hourglass {

void set(bool on);
bool isOn();

} // namespace Hourglass
