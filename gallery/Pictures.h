#pragma once

#include "CommandLine.h"
#include "GalleryFrame.h"

// Drives the frame through every page in every mode, or those that the command line names, by its
// own switches, and writes a PNG file of its window for each. Prints each path. False when one
// could not be written.
bool WritePictures(GalleryFrame& frame, const CommandLine& options);
