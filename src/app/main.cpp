#include "app/windows/start_application.h"

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int showCommand) {
    return varrocade::startApplication(instance, showCommand);
}
