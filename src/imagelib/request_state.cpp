#include "imagelib/request_state.h"

namespace tcu {

std::vector<std::string> ImageSearchPath;

const char* const FallbackImageName = "invalidImage-24.png";
const char* const DisabledSuffix = "_DISABLED";

void ImageRequest::StartCall() {
    imageName.clear();
    filePath.clear();
    directFileChecked = false;
    extraPhotoOptions.clear();
    disabled = false;
    colourGiven = false;
    colourText = nullptr;
    darkTheme = false;
    cacheKey.clear();
}

ImageRequest& CurrentRequest() {
    // Never destroyed: its Tcl objects must not be released after Tcl itself
    // has gone at process exit.
    static ImageRequest* request = new ImageRequest();
    return *request;
}

}  // namespace tcu
