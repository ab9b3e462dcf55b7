// The groups of rows, each in a file of its own.
#pragma once

#include "documents.h"
#include "measure.h"

namespace qv::benchmark {

void textRows(Report& report, const Document& document);   ///< JSON: load, tree, parse, save
void fileRows(Report& report, const Document& document);   ///< binary image and `.ini` file
void recordRows(Report& report, const Document& document); ///< query, open and close
void memoryRows(Report& report, const Document& document); ///< peak of a load and a save

/// The peak of the heap under a load or a save, in bytes, measured by qv_peak with these arguments.
std::size_t peakOf(const std::string& arguments);

/// Time and peak memory for each byte of documents from 0.5 to 32 MB.
void printGrowth(const Folder& folder);

/// Whole runs of commands of qvdb, from start to end. Those that it doesn't have are left out.
void printPrograms(const Folder& folder, const std::string& program);

/// The releases of the peers, and what simdjson runs on here.
std::string peers();

} // namespace qv::benchmark
