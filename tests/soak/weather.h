#pragma once

namespace soak {

class Company;

/// What goes wrong on a day, if anything does; it begins in the morning and is over at lunch.
void begin_weather(Company& company);
void end_weather(Company& company);

/// Somebody who is no part of the office says something on the segment.
void talk_from_outside(Company& company);

} // namespace soak
