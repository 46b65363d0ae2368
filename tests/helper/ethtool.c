/* A stand-in for machines without ethtool. It knows what the helper calls: ethtool -k DEVICE,
 * ethtool -K DEVICE FEATURE on|off. A kill test starts it some four times for each point. */

#include <linux/ethtool.h>
#include <linux/sockios.h>
#include <net/if.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

static const char *device;

static void ask(void *request)
{
    struct ifreq question = {0};
    int any_socket = socket(AF_INET, SOCK_DGRAM, 0);
    strncpy(question.ifr_name, device, sizeof question.ifr_name - 1);
    question.ifr_data = request;
    if (any_socket < 0 || ioctl(any_socket, SIOCETHTOOL, &question) < 0) {
        perror(device);
        exit(1);
    }
}

int main(int count, char **words)
{
    struct {
        struct ethtool_sset_info head;
        __u32 number;
    } sets = {{.cmd = ETHTOOL_GSSET_INFO, .sset_mask = 1ULL << ETH_SS_FEATURES}, 0};
    int changes = count == 5 && strcmp(words[1], "-K") == 0;
    if (!changes && (count != 3 || strcmp(words[1], "-k") != 0))
        return 2;
    device = words[2];
    ask(&sets);
    size_t number = sets.head.data[0], blocks = (number + 31) / 32;

    struct ethtool_gstrings *names = calloc(1, sizeof *names + number * ETH_GSTRING_LEN);
    names->cmd = ETHTOOL_GSTRINGS;
    names->string_set = ETH_SS_FEATURES;
    names->len = number;
    ask(names);
    struct ethtool_gfeatures *now = calloc(1, sizeof *now + blocks * sizeof *now->features);
    now->cmd = ETHTOOL_GFEATURES;
    now->size = blocks;
    struct ethtool_sfeatures *wanted = calloc(1,
                                              sizeof *wanted + blocks * sizeof *wanted->features);
    wanted->cmd = ETHTOOL_SFEATURES;
    wanted->size = blocks;
    if (!changes) {
        ask(now);
        printf("Features for %s:\n", device);
    }
    for (size_t i = 0; i < number; i++) {
        const char *name = (const char *)names->data + i * ETH_GSTRING_LEN;
        __u32 bit = 1U << i % 32;
        if (!changes && *name)
            printf("%.*s: %s\n", ETH_GSTRING_LEN, name,
                   now->features[i / 32].active & bit ? "on" : "off");
        if (changes && strncmp(name, words[3], ETH_GSTRING_LEN) == 0) {
            wanted->features[i / 32].valid |= bit;
            wanted->features[i / 32].requested |= strcmp(words[4], "on") == 0 ? bit : 0;
            ask(wanted);
            return 0;
        }
    }
    return changes;
}
