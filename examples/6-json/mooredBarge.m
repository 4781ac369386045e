% A barge on two mooring lines, in irregular waves. One entry a line.
environment = {
    waterDepth   = 60          % m
    waterDensity = 1025        % kg/m3
    gravity      = -9.81
    ground = {
        level     = -60
        stiffness = 3e6
    }
    wave = {
        type      = JONSWAP
        Hs        = 2.5        % significant wave height, m
        fp        = 0.11       % peak frequency, Hz
        gamma     = 3.3
        seed      = 42
        direction = 30         % degrees from the x axis
    }
}

hydroBody1 = {
    mass     = 98400
    position = [0, 0, 0]
    bemInput = {
        meshName = "hulls/barge.stl"
        position = [0, 0, 0]
    }
}

line1 = {
    type     = chain
    length   = 180
    anchor   = [-150; 0; -60]
    fairlead = (-4, 0, -0.5)
    material.diameter = 0.05
    material.EA       = 1.2e8
}
line2 = {
    source   = line1           % all other entries are those of line1
    anchor   = [150; 0; -60]
    fairlead = (4, 0, -0.5)
}

simulation.time.start = 0
simulation.time.end   = 600
simulation.print.dt   = 0.1
