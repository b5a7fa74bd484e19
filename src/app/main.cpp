#include "app/run_app.h"

int main(int argc, char** argv) { return brinto::RunApp(argc, argv); }
