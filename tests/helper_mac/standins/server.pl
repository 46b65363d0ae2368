#!/usr/bin/perl
# Answers for the Mac's programs that the root helper calls (program.c passes their arguments on). It keeps their settings in a
# state file, answers in the real programs' form, and refuses what they would not understand. Every call is recorded; the file
# /mac/fail makes one of them fail.
#
# /mac/state: lines "KEY<TAB>VALUE", with \n, \t and \\ in a value escaped. /mac/calls: a line per call.
# /mac/fail: "NUMBER MODE": that call from now on fails: "status" (nothing happens, status 1), "quiet" (a sentence on
# standard output, status 0, nothing happens; only networksetup does that) or "late" (it happens, status 1).
#
# It handles one call at a time, since the real programs' changes are separate, too. Tests that change the state hold /mac/lock
# meanwhile.
use strict;
use warnings;
use Socket;
use POSIX ();
use Time::HiRes ();
require '/mac/launchd.pl';
require '/mac/pf.pl';

our ($name, $caller, $input, %state);   # the values of the present call; launchd.pl and pf.pl use them as well

# %state has the content of the file already, unless another program has written the file since.
my $known = '';
sub state_file { join ' ', (Time::HiRes::stat('/mac/state'))[1, 7, 9] }

sub load {
    my $now = state_file();
    return if $known ne '' && $now eq $known;
    read_state();
    $known = $now;
}

# Only changes are written, so that reading calls do not disturb other programs.
my $loaded = '';
sub dump_state { join "\0", map { ($_, $state{$_}) } sort keys %state }

sub read_state {
    %state = ();
    $loaded = '';
    open(my $file, '<', '/mac/state') or return;
    while (my $line = <$file>) {
        chomp $line;
        my ($key, $value) = split /\t/, $line, 2;
        $value =~ s/\\(.)/$1 eq 'n' ? "\n" : $1 eq 't' ? "\t" : $1/ge;
        $state{$key} = $value;
    }
    $loaded = dump_state();
}

sub save {
    my $now = dump_state();
    return if $now eq $loaded;
    open(my $file, '>', "/mac/state.new.$$") or die;
    for my $key (sort keys %state) {
        (my $value = $state{$key}) =~ s/([\\\n\t])/$1 eq "\n" ? '\\n' : $1 eq "\t" ? '\\t' : '\\\\'/ge;
        print $file "$key\t$value\n";
    }
    close $file;
    rename "/mac/state.new.$$", '/mac/state' or die;
    ($loaded, $known) = ($now, state_file());
}

# The early end of a call, and the program that replaces it: PATH, then its arguments.
sub finish { die { status => $_[0] } }
sub become_program { die { run => [@_] } }
sub refuse { print STDERR "$name: illegal use: @_\n"; finish(64) }
# The call that writes to a Mac's disk durably; this system's perl does the rest (program.c). /mac/synced: a line per such call, the
# path, and whether the new file still has its own name.
sub fullsync {
    my ($option, $text, @words) = @_;
    my $note = 'open(my $synced, ">>", "/mac/synced"); print $synced "$path ", (-e $new ? "before" : "after"), "\n";';
    $text =~ s/\bfcntl\(\$file, 51, 0\)/do { $note fcntl(\$file, 1, 0) }/ or refuse(@_);
    become_program('/mac/gnu/perl', 'perl', $option, $text, @words);
}
sub gnu { become_program("/mac/gnu/$name", $name, @_) }

# ---- small ones ----

# df(1): -P. A volume of the system, and a medium in the folder that "attached" names, if any.
sub df {
    refuse(@_) unless @_ == 3 && "@_[0, 1]" eq '-P --' && -e $_[2];
    my $medium = $state{attached} // '';
    print "Filesystem 512-blocks Used Available Capacity Mounted on\n/dev/disk1 100 50 50 50% ",
        $medium ne '' && index($_[2], "$medium/") == 0 ? $medium : '/', "\n";
}
sub mount {   # mount(8): without words it lists
    refuse(@_) if @_;
    print "/dev/disk1 on / (apfs, local, journaled)\n";
    print "/dev/disk2 on $state{attached} (apfs, local, nodev, nosuid, noowners)\n" if $state{attached};
}

sub uname { refuse(@_) unless "@_" eq '-s'; print "Darwin\n" }
sub sync { refuse(@_) if @_ }
# mv(1): no -T, no -t
sub mv { refuse(@_) if grep { /^-./ && $_ ne '-f' && $_ ne '--' } @_; gnu(@_) }
# killall(1): -SIGNAL before the name
sub killall { refuse(@_) unless "@_" eq '-HUP mDNSResponder'; $state{'dns flushed'} = 1 }
sub ifconfig { print "lo0: flags=8049<UP,LOOPBACK,RUNNING,MULTICAST> mtu 16384\n\tinet 127.0.0.1 netmask 0xff000000\n\tinet6 ::1 prefixlen 128\n" }
sub sysctl { refuse(@_) unless "@_" eq '-n kern.bootsessionuuid'; print "$state{boot}\n" }

# stat(1): -f takes a format; no -c
sub stat_ {
    my ($option, $format, @paths) = @_;
    refuse(@_) unless $option eq '-f' && $format eq '%Lp %u %HT';
    shift @paths if $paths[0] eq '--';
    my $failed = 0;
    for my $path (@paths) {
        my @about = lstat($path) or do { print STDERR "stat: $path: stat: No such file or directory\n"; $failed = 1; next };
        printf "%o %d %s\n", $about[2] & 0777, $about[4], -l $path ? 'Symbolic Link' : -d _ ? 'Directory' : 'Regular File';
    }
    finish($failed);
}

# ls(1): -e prints access lists
sub ls {
    my ($option, @paths) = @_;
    refuse(@_) unless $option eq '-lde';
    shift @paths if $paths[0] eq '--';
    for my $path (@paths) {
        print "drwxr-xr-x+ 2 root  wheel  64 Nov 21 10:00 $path\n";
        print " 0: $state{\"acl $path\"}\n" if $state{"acl $path"};
    }
}

# Services have an id of their own; the first one's ends in 0.
sub service_id { sprintf '00000000-AAAA-BBBB-CCCC-00000000000%X', $_[0] }

sub scutil {
    my $asked = $input;
    if ($asked =~ m{^show State:/Network/Global/IPv([46])$}) {
        my $primary = $state{$1 == 4 ? 'primary' : 'primary of IPv6'} // '';
        my @names = map { s/^\*//r } services();
        my ($place) = grep { $names[$_] eq $primary } 0 .. $#names;
        print defined $place ? "<dictionary> {\n  PrimaryInterface : en0\n  PrimaryService : " . service_id($place) . "\n  Router : 192.168.1.1\n}\n" : "  No such key\n";
        return;
    }
    if ($asked =~ m{^show Setup:/Network/Service/\S+([0-9A-F])$}) {
        print "<dictionary> {\n  UserDefinedName : ", (services())[hex $1] =~ s/^\*//r, "\n}\n";
        return;
    }
    refuse($asked) unless $asked =~ /^show State:\/Users\/ConsoleUser$/;
    my $uid = $state{console};
    if (!defined $uid) { print "  No such key\n"; return }
    print "<dictionary> {\n  GID : 20\n  Name : alice\n  SessionInfo : <array> {\n    0 : <dictionary> {\n" .
          "      kCGSSessionUserIDKey : $uid\n    }\n  }\n  UID : $uid\n}\n";
}

sub dscacheutil {
    my @words = @_;
    if ("@words" eq '-flushcache') { $state{'cache flushed'} = 1; return }
    if ("@words[0 .. 3]" eq '-q user -a uid') {
        my $uid = $words[4];
        my $user = $state{"user $uid"} or return;
        my ($login, $gid, $home) = split / /, $user;
        print "name: $login\npassword: ********\nuid: $uid\ngid: $gid\ndir: $home\nshell: /bin/zsh\ngecos: A User\n\n";
        return;
    }
    refuse(@_) unless "@words[0 .. 3]" eq '-q host -a name';
    print $state{"host $words[4]"} // '';
}

# ---- accounts ----

sub dscl {
    my ($where, $verb, $record, $key, @value) = @_;
    refuse(@_) unless $where eq '.';
    # The directory's own policy, or the user, who was asked whether the program may administer the computer.
    if ($verb eq '-create' && length($state{'dscl refuses'} // '') && index($record, $state{'dscl refuses'}) == 0) {
        print STDERR "<main> attribute status: eDSPermissionError\n<dscl_cmd> DS Error: -14120 (eDSPermissionError)\n";
        finish(40);
    }
    if ($verb eq '-read') {
        if (!grep { /^record \Q$record\E\t/ || /^record \Q$record\E / } map { "$_ " } keys %state) {
            print STDERR "<dscl_cmd> DS Error: -14136 (eDSRecordNotFound)\n";
            finish(56);
        }
        my $value = $state{"record $record $key"};
        if (defined $value) { print $value =~ / / ? "$key:\n $value\n" : "$key: $value\n" }
        else { print "No such key: $key\n" }
    } elsif ($verb eq '-create') {
        $state{"record $record"} = 1;
        $state{"record $record $key"} = "@value" if defined $key;
    } elsif ($verb eq '-list') {
        for (sort keys %state) {
            printf "%-24s %s\n", $1, $state{$_} if m{^record \Q$record\E/(\S+) \Q$key\E$};
        }
    } else { refuse(@_) }
}

# ---- network services ----

sub services { split /\n/, $state{"services $state{location}"} }

# The sentences, and with "language" another language's.
my %english = (head => 'An asterisk (*) denotes that a network service is disabled.', dns => "There aren't any DNS Servers set on %s.",
    bypass => "There aren't any bypass domains set on this network service.", unknown => '%s is not a recognized network service.',
    wrong => '** Error: The parameters were not valid.', refused => '** Error: Unable to commit changes to network database.');
my %german = (head => "Ein Sternchen (*) bedeutet, dass ein Netzwerkdienst deaktiviert ist.", dns => "F\xc3\xbcr %s sind keine DNS-Server eingetragen.",
    bypass => "F\xc3\xbcr diesen Netzwerkdienst sind keine Ausnahmen eingetragen.", unknown => '%s ist kein bekannter Netzwerkdienst.',
    wrong => "** Fehler: Die Parameter waren ung\xc3\xbcltig.", refused => "** Fehler: Die Netzwerkdatenbank wurde nicht ge\xc3\xa4ndert.");
sub sentence { my ($key, $name) = @_; (($state{language} ? \%german : \%english)->{$key} =~ s/%s/$name/r) . "\n" }
# "language" may also change the words that stand before values.
sub on_or_off { my ($key, $value) = @_; ($state{language} // '') eq 'all' ? 'Aktiviert: ' . ($value eq 'Yes' ? 'Ja' : 'Nein') : "$key: $value" }

sub networksetup {
    my ($verb, $service, @rest) = @_;
    if ($verb eq '-listallnetworkservices') {
        print sentence('head'), map { "$_\n" } services();
        return;
    }
    if ($verb eq '-getcurrentlocation') { print "$state{location}\n"; return }
    if (!grep { s/^\*//r eq $service } services()) {
        print sentence('unknown', $service), sentence('wrong');
        finish($state{'old networksetup'} ? 0 : 4);
    }
    my $at = "service $state{location}/$service";
    # The settings of a VPN's own program or of a company's profile: "get" and "set" are all verbs of that kind, else it is one.
    my $refuses = $state{"$at refuses"} // '';
    if ($refuses =~ /^-/ ? $refuses eq $verb : $refuses =~ ($verb =~ /^-get/ ? qr/get/ : qr/set/)) {
        print sentence('refused');
        finish(14);
    }
    if ($verb eq '-getdnsservers') {
        print length($state{"$at dns"} // '') ? $state{"$at dns"} . "\n" : sentence('dns', $service);
    } elsif ($verb eq '-getproxybypassdomains') {
        print length($state{"$at bypass"} // '') ? $state{"$at bypass"} . "\n" : sentence('bypass');
    } elsif ($verb =~ /^-set(dnsservers|proxybypassdomains)$/) {
        my $key = $1 eq 'dnsservers' ? 'dns' : 'bypass';
        refuse(@_) unless @rest;
        $state{"$at $key"} = "@rest" eq 'Empty' ? '' : join("\n", @rest);
    } elsif ($verb =~ /^-get(web|secureweb|socksfirewall)proxy$/) {
        my ($on, $host, $port, $authenticated) = split /\t/, $state{"$at $1"} // "No\t\t0", 4;
        # Not the user's name, and not the password, which is in the keychain.
        print on_or_off('Enabled', $on), "\nServer: $host\nPort: $port\nAuthenticated Proxy Enabled: ", $authenticated ? 1 : 0, "\n";
    } elsif ($verb eq '-setsocksfirewallproxy') {
        my ($host, $port, $authenticated) = @rest;
        refuse(@_) unless $authenticated eq 'off' && $port =~ /^\d*$/;   # "on" takes the name and the password too
        $state{"$at socksfirewall"} = "Yes\t$host\t" . ($port || 0);   # the real one switches it on as well
    } elsif ($verb =~ /^-set(web|secureweb|socksfirewall)proxystate$/) {
        my $kind = $1;
        refuse(@_) unless "@rest" =~ /^(?:on|off)$/;
        my ($on, @more) = split /\t/, $state{"$at $kind"} // "No\t\t0";
        $state{"$at $kind"} = join "\t", "@rest" eq 'on' ? 'Yes' : 'No', @more;
    } elsif ($verb eq '-getautoproxyurl') {
        my ($on, $url) = split /\t/, $state{"$at auto"} // "No\t(null)", 2;
        print "URL: $url\n", on_or_off('Enabled', $on), "\n";
    } elsif ($verb eq '-setautoproxystate') {
        my ($on, $url) = split /\t/, $state{"$at auto"} // "No\t(null)", 2;
        $state{"$at auto"} = ("@rest" eq 'on' ? 'Yes' : 'No') . "\t$url";
    } elsif ($verb eq '-getproxyautodiscovery') {
        print 'Auto Proxy Discovery: ', $state{"$at discovery"} // 'Off', "\n";
    } elsif ($verb eq '-setproxyautodiscovery') {
        $state{"$at discovery"} = "@rest" eq 'on' ? 'On' : 'Off';
    } elsif ($verb eq '-getinfo') {
        print "DHCP Configuration\nIP address: 192.168.1.7\nSubnet mask: 255.255.255.0\nRouter: 192.168.1.1\nClient ID: \n",
            "IPv6: ", $state{"$at ipv6"} // 'Automatic', "\nIPv6 IP address: none\nIPv6 Router: none\n";
    } elsif ($verb =~ /^-setv6(off|automatic)$/) {
        refuse(@_) if @rest;
        if ($1 eq 'off') { $state{"$at ipv6"} = 'Off' } else { delete $state{"$at ipv6"} }
    } else { refuse(@_) }
}

# ---- the ports that a process listens at ----

sub lsof {
    refuse(@_) unless "@_" =~ /^-nP -a -p (\d+) -iTCP:(\d+) -sTCP:LISTEN -t$/;
    my ($pid, $port) = ($1, sprintf '%04X', $2);
    open(my $table, '<', '/proc/net/tcp') or finish(1);
    my %sockets = map { my @c = split; ("socket:[$c[9]]" => 1) } grep { /^\s*\d+: \w+:$port \S+ 0A/ } <$table>;
    for (glob "/proc/$pid/fd/*") {
        if ($sockets{readlink($_) // ''}) { print "$pid\n"; return }
    }
    finish(1);
}

# ---- calls ----

my %stand_in = (uname => \&uname, sync => \&sync, mv => \&mv, killall => \&killall, ifconfig => \&ifconfig, sysctl => \&sysctl,
    df => \&df, mount => \&mount, stat => \&stat_, ls => \&ls, scutil => \&scutil, dscacheutil => \&dscacheutil, dscl => \&dscl,
    networksetup => \&networksetup, launchctl => \&launchctl, lsof => \&lsof, pfctl => \&pfctl, fullsync => \&fullsync);

sub file_text { my ($path) = @_; open(my $file, '<', $path) or return ''; local $/; return <$file> // '' }

# The watcher runs by itself: its calls are not counted and never made to fail.
sub note_call {
    my ($parent, @words) = @_;
    return '' if file_text("/proc/$parent/cmdline") =~ m{/watcher\.sh};
    open(my $calls, '>>', '/mac/calls') or die;
    syswrite $calls, join(' ', $name, map { s/\n/\\n/gr } @words) . "\n";
    my ($left, $how) = split ' ', file_text('/mac/fail') or return '';
    open(my $new, '>', '/mac/fail') or die;
    print $new --$left, " $how\n";
    return '' if $left != 0;
    return $how eq 'quiet' && $name ne 'networksetup' ? 'status' : $how;
}

# The answer to one call.
sub answer {
    my ($parent, $count, @rest) = @_;
    my @words = splice(@rest, 0, $count - 1);
    $input = join("\0", @rest);
    my ($out, $error, $status, $run) = ('', '', 0);
    {
        local (*STDOUT, *STDERR);
        open(STDOUT, '>', \$out);
        open(STDERR, '>', \$error);
        my $mode = note_call($parent, @words);
        if ($mode eq 'status') { print STDERR "$name: made to fail\n"; $status = 1 }
        elsif ($mode eq 'quiet') { print "** Error: made to fail quietly.\n" }
        else {
            load();
            settle_jobs();
            if (eval { $stand_in{$name}->(@words); 1 }) { save(); $status = $mode eq 'late' ? 1 : 0 }
            elsif (ref $@ && $@->{run}) { $run = $@->{run} }
            elsif (ref $@) { $status = $@->{status} }
            else { $error .= $@; $status = 70 }
            $known = '' if dump_state() ne $loaded;   # given up half-way: unsaved changes have not happened
        }
    }
    return $run ? "run\n" . join('', map { "$_\0" } @$run) : "$status " . length($out) . ' ' . length($error) . "\n$out$error";
}

socket(my $server, AF_UNIX, SOCK_STREAM, 0) or die;
bind($server, pack_sockaddr_un('/mac/socket')) or die;
chmod 0777, '/mac/socket';
listen($server, 64) or die;
exit 0 if fork;   # the starter waits until there is a server
POSIX::setsid();
open(STDIN, '<', '/dev/null');
open(STDOUT, '>', '/dev/null');
open(STDERR, '>>', '/mac/server.log');
$SIG{PIPE} = 'IGNORE';   # the caller may have been killed meanwhile
open(my $lock, '>>', '/mac/lock') or die;
while (1) {
    accept(my $client, $server) or next;
    my $call = do { local $/; <$client> } // '';
    $call =~ s/^(\d+) (\d+) (\d+) ([^\0]*)\0//s or next;
    ($caller, my $parent, my $count, $name) = ($1, $2, $3, $4);
    flock($lock, 2);
    my $answer = answer($parent, $count, split(/\0/, $call, -1));
    flock($lock, 8);
    print $client $answer;
    close $client;
}
