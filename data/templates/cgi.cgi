#!/usr/bin/perl
use strict;
use warnings;

# Makes text safe to use in a page.
sub escape {
    my ($text) = @_;
    my %entity = ('&' => '&amp;', '<' => '&lt;', '>' => '&gt;', '"' => '&quot;');
    $text =~ s/([&<>"])/$entity{$1}/g;
    return $text;
}

my $query = escape($ENV{QUERY_STRING} // '');

print "Content-Type: text/html; charset=utf-8\r\n\r\n";
print <<"PAGE";
<!DOCTYPE html>
<html lang="en">
<head>
  <meta charset="utf-8">
  <title>CGI Script</title>
</head>
<body>
  <h1>It works</h1>
  <p>The query is: $query</p>
</body>
</html>
PAGE
