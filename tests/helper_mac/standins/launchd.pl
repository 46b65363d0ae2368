# launchd's stand-in, a part of server.pl.
use strict;
use warnings;
our ($name, $caller, $input, %state);

sub alive { my $pid = shift; open(my $file, '<', "/proc/$pid/stat") or return 0; return (<$file> // 'x) Z') !~ /\) [ZX]/ }

sub become {
    my ($user) = @_;
    my ($uid, $gid) = map { $state{"record /Users/$user $_"} } qw(UniqueID PrimaryGroupID);
    $) = "$gid $gid";
    POSIX::setgid($gid);
    POSIX::setuid($uid);
    POSIX::_exit(126) unless $> == $uid && $uid;
}

# launchd answers before the action is complete: an ending job exists until its process has ended, and is killed after its time
# limit.
sub settle_jobs {
    my @leaving = grep { /^leaving / } keys %state or return;
    for my $key (@leaving) {
        my ($label) = $key =~ /^leaving (.*)/;
        my ($pid, $until) = split / /, $state{$key};
        if (alive($pid) && time() < $until) { next }
        kill 'KILL', -$pid;
        delete @state{$key, "job $label"};
        $state{"settling $label"} = 2;   # this many further calls for it fail
    }
    save();
}

sub launchctl {
    my ($verb, @words) = @_;
    if ($verb eq 'list') {
        my $pid = $state{"job $words[0]"};
        if (!defined $pid) { print STDERR "Could not find service \"$words[0]\" in domain for system\n"; finish(113) }
        # The job has no process at first.
        delete $state{"spawning $words[0]"} if exists $state{"spawning $words[0]"} && --$state{"spawning $words[0]"} < 0;
        print "{\n\t\"LimitLoadToSessionType\" = \"System\";\n\t\"Label\" = \"$words[0]\";\n\t\"OnDemand\" = true;\n\t\"LastExitStatus\" = 0;\n",
              ($state{"spawning $words[0]"} // 0) <= 0 && alive($pid) ? "\t\"PID\" = $pid;\n" : '', "\t\"Program\" = \"x\";\n};\n";
    } elsif ($verb eq 'enable') {
        refuse(@_) unless "@words" =~ m{^system/\S+$};
    } elsif ($verb eq 'bootstrap') {
        my ($domain, $file) = @words;
        refuse(@_) unless $domain eq 'system';
        my @about = lstat($file);
        if (!@about || $about[4] != 0 || $about[2] & 022) { print STDERR "Bootstrap failed: 122: Path had bad ownership/permissions\n"; finish(122) }
        my $text = do { local (@ARGV, $/) = $file; <> };
        my %job = $text =~ m{<key>(\w+)</key>\s*<string>([^<]*)</string>}g;
        my ($words) = $text =~ m{<key>ProgramArguments</key>\s*<array>(.*?)</array>}s;
        my @command = $words =~ m{<string>([^<]*)</string>}g;
        if (defined $state{"job $job{Label}"}) { print STDERR "Bootstrap failed: 5: Input/output error\n"; finish(5) }
        if (defined(my $left = $state{"settling $job{Label}"})) {
            if ($left == 1) { delete $state{"settling $job{Label}"} } else { $state{"settling $job{Label}"}-- }
            save();
            print STDERR $left == 1 ? "Bootstrap failed: 5: Input/output error\n" : "Bootstrap failed: 37: Operation already in progress\n";
            finish($left == 1 ? 5 : 37);
        }
        my ($read, $write);
        pipe($read, $write);
        if (!fork) {
            POSIX::setsid();
            my $pid = fork;
            if ($pid) { syswrite $write, "$pid\n"; POSIX::_exit(0) }
            POSIX::close($_) for 3 .. 20;   # launchd's children get no descriptor of this program
            $SIG{$_} = 'DEFAULT' for qw(INT TERM HUP QUIT PIPE TSTP);
            POSIX::setpgid(0, 0);
            become($job{UserName}) if $job{UserName};
            my $number = 0;   # these handles belong to the answer
            for (['/dev/null', POSIX::O_RDONLY()], map { [$job{$_} // '/dev/null', POSIX::O_WRONLY() | POSIX::O_APPEND() | POSIX::O_CREAT()] }
                 qw(StandardOutPath StandardErrorPath)) {
                my $opened = POSIX::open(@$_, 0666);
                POSIX::dup2($opened, $number++);
                POSIX::close($opened);
            }
            %ENV = $job{HOME} ? (HOME => $job{HOME}, PATH => $job{PATH}, LC_ALL => 'C') : (PATH => '/usr/bin:/bin');
            exec { $command[0] } @command;
            POSIX::_exit(127);
        }
        chomp($state{"job $job{Label}"} = <$read>);
        $state{"spawning $job{Label}"} = 3;
    } elsif ($verb eq 'bootout') {
        my $label = $words[0] =~ s{^system/}{}r;
        my $pid = $state{"job $label"};
        if (!defined $pid) { print STDERR "Boot-out failed: 3: No such process\n"; finish(3) }
        delete $state{"spawning $label"};
        kill 'TERM', $pid;
        $state{"leaving $label"} //= "$pid " . (time() + 5);
        save();
        if (alive($pid)) { print STDERR "Boot-out failed: 36: Operation now in progress\n"; finish(36) }
    } elsif ($verb eq 'asuser') {
        my ($uid, @command) = @words;
        become_program($command[0], @command);
    } else { refuse(@_) }
}

1;
