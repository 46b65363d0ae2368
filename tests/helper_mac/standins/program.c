/* The private Mac has this program under the name of each program that the root helper calls.
 *
 * server.pl, which runs all the time, answers for programs that only a Mac has, or that differ on a
 * Mac: a small program that passes its arguments on takes a tenth of an interpreter's start.
 * Programs of both systems are this system's own, run like a Mac's: each line of the table below
 * has the options of the manual page of that name in macOS, which is FreeBSD's for most.
 *
 * FreeBSD's getopt(3) finds no option after the first operand, and a "--" after an operand is one
 * more operand. GNU's getopt goes on. So this program puts a "--" before the operands.
 */
#define _GNU_SOURCE
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

struct rule {
    const char *name, *options; /* as for getopt(3) */
};

static const struct rule rules[] = {
    {"cat", "belnstuv"},    /* cat(1): no -A, -E, -T */
    {"chmod", "fhvRHLP"},   /* chmod(1): no --reference, no -c */
    {"chown", "fhnvxRHLP"}, /* chown(8): no --from */
    {"cp", "RHLPfinacpvX"}, /* cp(1): no -t, -T, -u, -d, --parents */
    {"date", "jnRur:v:"}, /* date(1): -d sets daylight saving, it reads no time; -r takes seconds */
    {"dirname", ""},      /* dirname(1): no -z */
    {"env", "0iu:vP:S:"}, /* env(1): no -C */
    {"grep", "abcd:D:EFGHhIiJLlMm:nOopqRrSsUVvwXxZze:f:A:B:C:"}, /* grep(1): no -P */
    {"head", "n:c:"},        /* head(1): no -q, -v, -z; and no negative numbers */
    {"id", "ApGgnurFP"},     /* id(1): no -z, -Z */
    {"ln", "Ffhinsvw"},      /* ln(1): no -r, -t, -T */
    {"mkdir", "m:pv"},       /* mkdir(1): no -Z */
    {"mktemp", "dqt:up:"},   /* mktemp(1): -t takes a prefix; no --suffix */
    {"readlink", "fn"},      /* readlink(1): no -e, -m, -z */
    {"rm", "dfiIPRrvWx"},    /* rm(1): no --one-file-system, --no-preserve-root */
    {"rmdir", "pv"},         /* rmdir(1): no --ignore-fail-on-non-empty */
    {"sed", "Eanlrue:f:"},   /* sed(1): -i wants an extension, a word of its own; nothing of ours
                                edits in place */
    {"shasum", "a:bcpsUtw"}, /* shasum(1) */
    {"sleep", ""},           /* sleep(1): one number, no unit */
    {"sort", "bcCdfgik:mMno:rRst:uVz"},  /* sort(1) */
    {"tail", "Frfqb:c:n:"},              /* tail(1): no -s, --pid, --retry */
    {"touch", "A:acfhmr:t:"},            /* touch(1): no --date; -d takes another form */
    {"tr", "Ccdsu"},                     /* tr(1): no -t */
    {"wc", "clmwL"},                     /* wc(1) */
    {"xargs", "0I:J:L:n:oP:pR:rs:tE:x"}, /* xargs(1): no -d, -a */
};

/* Words whose form differs although the letters do not. */
static int has_other_form(const char *name, char option, const char *word)
{
    if (!strcmp(name, "head") && option) /* head(1): a positive number, without a unit */
        return !*word || strspn(word, "0123456789") != strlen(word);
    if (!strcmp(name, "sleep")) /* sleep(1): one number without a unit */
        return !*word || strspn(word, "0123456789.") != strlen(word);
    if (!strcmp(name, "date")) /* strftime(3): no nanoseconds */
        return !!strstr(word, "%N");
    return 0;
}

static int refuse(const char *name, const char *what)
{
    fprintf(stderr, "%s: illegal option -- %s\n", name, what);
    return 1;
}

static int run_as_bsd(const struct rule *rule, int count, char **words)
{
    char **run = calloc(count + 2, sizeof *run), path[64];
    int at = 1, n = 1;
    run[0] = words[0];
    for (; at < count && words[at][0] == '-' && words[at][1]; at++) {
        if (!strcmp(words[at], "--")) {
            at++;
            break;
        }
        run[n++] = words[at];
        for (const char *letter = words[at] + 1; *letter; letter++) {
            const char *known = strchr(rule->options, *letter);
            if (*letter == ':' || !known)
                return refuse(rule->name, letter);
            if (known[1] != ':')
                continue;
            if (!letter[1] && at + 1 == count)
                return refuse(rule->name, letter);
            if (has_other_form(rule->name, *letter, letter[1] ? letter + 1 : words[at + 1]))
                return refuse(rule->name, letter);
            if (!letter[1])
                run[n++] = words[++at];
            break;
        }
    }
    run[n++] = (char *)"--";
    for (; at < count; at++) {
        if (has_other_form(rule->name, 0, words[at]))
            return refuse(rule->name, words[at]);
        run[n++] = words[at];
    }
    run[n] = NULL;
    snprintf(path, sizeof path, "/mac/gnu/%s", rule->name);
    execv(path, run);
    return errno == ENOENT ? 127 : 126;
}

static void send_all(int to, const void *data, size_t length)
{
    for (const char *at = data; length;) {
        ssize_t sent = send(to, at, length, MSG_NOSIGNAL);
        if (sent <= 0)
            exit(70);
        at += sent;
        length -= sent;
    }
}

static void write_all(int to, const char *data, size_t length)
{
    while (length) {
        ssize_t written = write(to, data, length);
        if (written <= 0)
            return;
        data += written;
        length -= written;
    }
}

/* The whole answer: "STATUS LENGTH LENGTH\n", standard output, standard error; or "run\n" and a
 * program's words. */
static int ask(const char *name, int count, char **words)
{
    struct sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = "/mac/socket"};
    int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0), reads = !strcmp(name, "scutil");
    char head[64], *answer = malloc(1 << 20), *run[256];
    size_t length = 0, out, error;
    ssize_t got;
    int status, used;
    if (connect(server, (struct sockaddr *)&address, sizeof address)) {
        fprintf(stderr, "%s: the stand-ins' server does not answer\n", name);
        return 70;
    }
    send_all(server, head, snprintf(head, sizeof head, "%d %d %d ", getpid(), getppid(), count));
    send_all(server, name, strlen(name) + 1);
    for (int at = 1; at < count; at++) {
        send_all(server, words[at], strlen(words[at]) + 1);
        if (!strcmp(name, "pfctl") && !strcmp(words[at], "-"))
            reads = 1;
    }
    while (reads && (got = read(0, answer, 1 << 16)) > 0)
        send_all(server, answer, got);
    shutdown(server, SHUT_WR);
    while (length < (1 << 20) - 1
           && (got = read(server, answer + length, (1 << 20) - 1 - length)) > 0)
        length += got;
    answer[length] = 0;
    if (!strncmp(answer, "run\n", 4)) {
        int n = 0;
        for (char *at = answer + 4; at < answer + length && n < 255; at += strlen(at) + 1)
            run[n++] = at;
        run[n] = NULL;
        execvp(run[0], run + 1);
        return 127;
    }
    if (sscanf(answer, "%d %zu %zu\n%n", &status, &out, &error, &used) != 3)
        return 70;
    used = strchr(answer, '\n') - answer + 1;
    write_all(1, answer + used, out);
    write_all(2, answer + used + out, error);
    return status;
}

int main(int count, char **words)
{
    const char *slash = strrchr(words[0], '/'), *name = slash ? slash + 1 : words[0];
    for (size_t at = 0; at < sizeof rules / sizeof *rules; at++)
        if (!strcmp(rules[at].name, name))
            return run_as_bsd(&rules[at], count, words);
    if (!strcmp(name, "perl")) {
        /* A Mac's fcntl 51, F_FULLFSYNC, has another meaning here: the server handles it.
         */
        if (count > 2 && strstr(words[2], "fcntl($file, 51, 0)"))
            return ask("fullsync", count, words);
        execv("/mac/gnu/perl", words);
        return 127;
    }
    return ask(name, count, words);
}
