#include "library/library_files.h"
#include "text/ascii.h"

namespace zev {

CopyResult CopyLibraryFile(FileSystem& files, const std::string& source,
                           const std::string& destination) {
    if (equalsIgnoringCase(source, destination))
        return CopyResult::SamePlace;
    if (!files.FileExists(source))
        return CopyResult::SourceMissing;
    // Not deleted first: the copy replaces the old file whole, so that a failure leaves it intact.
    return files.CopyFile(source, destination) ? CopyResult::NotSaved : CopyResult::Copied;
}

}  // namespace zev
