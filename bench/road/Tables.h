#pragma once

#include <string>
#include <vector>

#include "road/Comparison.h"

/// All that the tables of a plan tell of.
std::vector<Task> TasksOf(const Plan& plan);

/// Markdown: tables by the number and the kind of triggers, each ratio with its noise, and some words below.
std::string DescribeResults(const AllResults& all, const Plan& plan, const Idleness& idle);

/// The processor time of a line against the number of triggers, as a picture in SVG.
std::string DrawResults(const AllResults& all, const Plan& plan);
