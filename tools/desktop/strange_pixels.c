/* Captures the top of the screen as fast as possible until standard input closes. Prints the number
   of frames, frames per second, the maximum percentage of pixels that differ from the leftmost pixel
   of their row, and how many milliseconds after the locker's window was mapped the last such frame
   came. With the argument "mapped", frames count only once that window is mapped and drawn (a
   compositor can be much later), and for the percentage only those later than 50 ms. */

#include <poll.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <time.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>

/* IDs of the server's own windows, such as the compositors' overlay. */
enum { SERVERS_LAST = 0x1fffff };

enum { LEFT = 230, WIDTH = 980, HEIGHT = 41, ALLOWED_MS = 50 };

static double milliseconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

static int is_full_screen(xcb_connection_t* x, xcb_window_t window, const xcb_screen_t* screen) {
    xcb_get_geometry_reply_t* area = xcb_get_geometry_reply(x, xcb_get_geometry(x, window), NULL);
    const int full = area && area->width + 8 >= screen->width_in_pixels &&
                     area->height + 8 >= screen->height_in_pixels;
    free(area);
    return full;
}

int main(int count, char** arguments) {
    const int waits = count > 1 && strcmp(arguments[1], "mapped") == 0;
    xcb_connection_t* x = xcb_connect(NULL, NULL);
    if (xcb_connection_has_error(x)) {
        return 1;
    }
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x)).data;
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(x, screen->root, XCB_CW_EVENT_MASK, &mask);
    const int memory = shmget(IPC_PRIVATE, WIDTH * HEIGHT * 4, IPC_CREAT | 0600);
    const uint32_t* pixels = shmat(memory, NULL, 0);
    const xcb_shm_seg_t segment = xcb_generate_id(x);
    xcb_generic_error_t* error =
        xcb_request_check(x, xcb_shm_attach_checked(x, segment, (uint32_t)memory, 0));
    shmctl(memory, IPC_RMID, NULL);
    if (error) {
        return 1;
    }
    puts("ready");
    fflush(stdout);
    const double begin = milliseconds();
    double mapped = waits ? 0 : begin, last = 0, worst = 0;
    long frames = 0;
    uint32_t desktop = 0;
    struct pollfd input = {0, POLLIN, 0};
    while (poll(&input, 1, 0) == 0) {
        xcb_generic_event_t* event;
        while ((event = xcb_poll_for_event(x))) {
            const xcb_map_notify_event_t* map = (const void*)event;
            if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY && mapped == 0 &&
                map->override_redirect && map->window > SERVERS_LAST && is_full_screen(x, map->window, screen)) {
                mapped = milliseconds();
            }
            free(event);
        }
        xcb_shm_get_image_reply_t* reply = xcb_shm_get_image_reply(
            x,
            xcb_shm_get_image(x, screen->root, LEFT, 0, WIDTH, HEIGHT, ~0U,
                              XCB_IMAGE_FORMAT_Z_PIXMAP, segment, 0),
            NULL);
        if (!reply) {
            return 1;
        }
        free(reply);
        const uint32_t outside = pixels[30 * WIDTH];
        if (frames++ == 0 && waits) {
            desktop = outside;
        }
        if (mapped == 0 || outside == desktop) {
            continue;
        }
        long strange = 0;
        for (int i = 0; i < WIDTH * HEIGHT; ++i) {
            strange += ((pixels[i] ^ pixels[i - i % WIDTH]) & 0xffffff) != 0;
        }
        const double after = milliseconds() - mapped;
        const double share = 100.0 * strange / (WIDTH * HEIGHT);
        if (share > 0) {
            last = after;
        }
        if (share > worst && (!waits || after > ALLOWED_MS)) {
            worst = share;
        }
    }
    printf("%ld %.0f %.2f %.0f\n", frames, frames * 1e3 / (milliseconds() - begin), worst, last);
    return 0;
}
