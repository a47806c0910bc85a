// Writes the sample library's documents into a folder.
#pragma once

#include <QString>

namespace samples {

// Makes the folder where it is missing, and replaces the documents that an earlier call wrote
// there. Other files stay: a file that has a sample's name and is none stops the call before
// anything is written. Gives the absolute path of the main assembly; raises DocumentError.
QString WriteSamples(const QString& folder);

}  // namespace samples
