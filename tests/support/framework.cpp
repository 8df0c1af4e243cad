// Nothing but the place where the headers of the test framework are compiled once for all test programs.
