// main.cpp: starts the game on the page.
#include "game/Main.h"

#include "ui/layer/App.h"
#include "ui/web/WebBinding.h"
#include "ui/web/WebPlatform.h"

int main()
{
    using namespace malvone;
    web::WebPlatform platform;
    web::WebBinding binding;
    App.Begin(binding, platform);
    {
        const EventScope scope;
        Main();
    }
    binding.Run();
    App.Finish();
    return 0;
}
