#include "sampledocument.h"

std::shared_ptr<Json> makeSampleDocument(int layers, qint64 marker)
{
    auto json = std::make_shared<Json>();
    json->json_id = marker;
    json->width = 1080;
    json->height = 1920;
    json->sample_image = QStringLiteral("1731672000123456.png");
    json->thumbnail_img = QStringLiteral("1731672000123457.jpg");
    json->background_json = std::make_shared<BackgroundJson>();
    json->background_json->background_color = QStringLiteral("#e05863");
    json->background_json->gradient_colors = QStringList { QStringLiteral("#ffffff"), QStringLiteral("#000000") };
    json->frame_json = std::make_shared<FrameJson>();
    json->frame_json->frame_image = QStringLiteral("frame.png");
    json->text_json.emplace();
    json->sticker_json.emplace();
    json->image_sticker_json.emplace();
    json->frame_image_sticker_json.emplace();
    for (int i = 0; i < layers; ++i) {
        const double x = 10.25 + i * 3.1;
        const double y = 20.75 + i * 1.7;
        switch (i % 4) {
        case 0: {
            auto text = std::make_shared<TextJson>();
            text->xPos = x;
            text->yPos = y;
            text->size = 36.5;
            text->opacity = 100;
            text->angle = 0.1745;
            text->text = QStringLiteral("Layer %1 with a line of text").arg(i);
            text->color = QStringLiteral("#ffffff");
            text->fontName = QStringLiteral("Montserrat-Bold");
            text->index = i / 4 + 1;
            json->text_json->append(text);
            break;
        }
        case 1: {
            auto sticker = std::make_shared<StickerJson>();
            sticker->xPos = x;
            sticker->yPos = y;
            sticker->width = 120.5;
            sticker->height = 80.25;
            sticker->opacity = 90;
            sticker->angle = -0.5;
            sticker->sticker_image = QStringLiteral("sticker_%1.png").arg(i);
            sticker->color = QStringLiteral("FFFFFF");
            sticker->index = i / 4 + 1;
            json->sticker_json->append(sticker);
            break;
        }
        case 2: {
            auto slot = std::make_shared<ImageStickerJson>();
            slot->xPos = x;
            slot->yPos = y;
            slot->width = 300;
            slot->height = 400;
            slot->image_sticker_image = QStringLiteral("photo_%1.jpg").arg(i);
            slot->index = i / 4 + 1;
            json->image_sticker_json->append(slot);
            break;
        }
        default: {
            auto slot = std::make_shared<FrameImageStickerJson>();
            slot->xPos = x;
            slot->yPos = y;
            slot->width = 250;
            slot->height = 250;
            slot->opacity = 100;
            slot->image_sticker_image = QStringLiteral("shape_%1.png").arg(i);
            slot->xPosImage = 0;
            slot->yPosImage = 0;
            slot->widthImage = 250;
            slot->heightImage = 250;
            slot->angleImage = 0;
            slot->index = i / 4 + 1;
            json->frame_image_sticker_json->append(slot);
            break;
        }
        }
    }
    return json;
}
